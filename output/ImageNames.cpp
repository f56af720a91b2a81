#include "output/ImageNames.h"

#include "core/Vocabulary.h"

namespace deckforge {

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
    return (kind + header.FilenamePrefix + QLatin1Char(' ') + number + fileName + QLatin1Char('.') +
            ImageExtension(header.SaveFormat))
        .trimmed();
}

} // namespace deckforge
