// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/ImageNames.h"

#include "core/Vocabulary.h"
#include "platform/Paths.h"

namespace deckforge {

namespace {

/// Trims spaces only: other white space is part of the name.
QString WithoutOuterSpaces(QString text)
{
    while (text.startsWith(QLatin1Char(' ')))
        text.remove(0, 1);
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

} // namespace

QString FixFileName(const SetHeader& header, const QString& path)
{
    if (!header.ReplaceSpace)
        return path;
    return FolderPart(path) + NamePart(path).replace(QLatin1Char(' '), QLatin1Char('_'));
}

QString PathToWrite(const SetHeader& header, const FilePath& path)
{
    if (HoldsSeparator(path.Name))
        throw RunTimeError(ErrorNumber::BadFileName);
    return FixFileName(header, path.Full());
}

QString ImageExtension(int16 saveFormat)
{
    return SaveFormats().value(saveFormat).toLower();
}

QString PaddedNumber(int number, int count)
{
    return (QStringLiteral("00000") + QString::number(number)).right(QString::number(count).size());
}

QString ImageName(const SetHeader& header, const QString& kind, const QString& fileName, int index, int count)
{
    const QString number = header.FileNr ? PaddedNumber(index, count) + QLatin1Char(' ') : QString();
    return WithoutOuterSpaces(kind + header.FilenamePrefix + QLatin1Char(' ') + number + fileName +
                              QLatin1Char('.') + ImageExtension(header.SaveFormat));
}

QString SheetName(const SetHeader& header, const QString& sheet, int sheetNumber, int cardCount,
                  int cardsPerSheet)
{
    const QString base = header.FilenamePrefix.isEmpty() ? header.SetName : header.FilenamePrefix;
    return base + sheet + PaddedNumber(sheetNumber, cardCount / cardsPerSheet + 1) + QLatin1Char('.') +
           ImageExtension(header.SaveFormat);
}

} // namespace deckforge
