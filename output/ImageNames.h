// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Records.h"

#include <QString>

namespace deckforge {

/// Where a file goes: the folder with its separator, and the bare name with its extension.
struct FilePath {
    QString Folder;
    QString Name;

    [[nodiscard]] QString Full() const { return Folder + Name; }
};

/// The path with the blanks of its name as underlines where the set wants that; those of its folder stay.
[[nodiscard]] QString FixFileName(const SetHeader& header, const QString& path);

/// The full path to write, after the replacements. A name that holds a separator is error 52: a set from a
/// stranger cannot write outside its folder.
[[nodiscard]] QString PathToWrite(const SetHeader& header, const FilePath& path);

/// "bmp", "jpg" or "gif"; empty for a format that there is not.
[[nodiscard]] QString ImageExtension(int16 saveFormat);

/// The number as long as the count: 7 of 120 is "007". Of a longer one the last digits stand.
[[nodiscard]] QString PaddedNumber(int number, int count);

/// "prefix 007 Sword.jpg", blanks at its ends trimmed. The kind of card stands in front of the prefix where
/// there is one to tell: "Large ".
[[nodiscard]] QString ImageName(const SetHeader& header, const QString& kind, const QString& fileName,
                                int index, int count);

/// "base Sheet 02.jpg" or "base Sheet Large 02.jpg": the base is the prefix, or the set's name without one,
/// and the number is as long as that of the sheets that the cards would fill with one copy each.
[[nodiscard]] QString SheetName(const SetHeader& header, const QString& sheet, int sheetNumber, int cardCount,
                                int cardsPerSheet);

} // namespace deckforge
