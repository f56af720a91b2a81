#include "output/ImageNames.h"

#include "core/Vocabulary.h"

namespace deckforge {

namespace {

/// Blanks alone: other white space is part of the name.
QString WithoutOuterBlanks(const QString& text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin] == QLatin1Char(' '))
        ++begin;
    while (end > begin && text[end - 1] == QLatin1Char(' '))
        --end;
    return text.sliced(begin, end - begin);
}

} // namespace

QString ImageExtension(int16 saveFormat)
{
    return SaveFormats().value(saveFormat).toLower();
}

QString PaddedNumber(int number, int count)
{
    const qsizetype length = QString::number(count).size();
    return (QStringLiteral("00000") + QString::number(number)).right(length);
}

QString ImageName(const SetHeader& header, const QString& kind, const QString& fileName, int index, int count)
{
    const QString number = header.FileNr ? PaddedNumber(index, count) + QLatin1Char(' ') : QString();
    return WithoutOuterBlanks(kind + header.FilenamePrefix + QLatin1Char(' ') + number + fileName +
                              QLatin1Char('.') + ImageExtension(header.SaveFormat));
}

} // namespace deckforge
