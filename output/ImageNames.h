// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Records.h"

#include <QString>

namespace deckforge {

/// The path of a file: the folder with its separator, and the name with its extension.
struct FilePath {
    QString Folder;
    QString Name;

    [[nodiscard]] QString Full() const { return Folder + Name; }
};

/// Replaces spaces in the name (not the folder) by underscores, if the set has ReplaceSpace.
[[nodiscard]] QString FixFileName(const SetHeader& header, const QString& path);

/// The full path to write, with FixFileName applied. Error 52 if the name contains a separator, so that an
/// untrusted set cannot write outside its folder.
[[nodiscard]] QString PathToWrite(const SetHeader& header, const FilePath& path);

/// "bmp", "jpg" or "gif"; empty for an unknown format.
[[nodiscard]] QString ImageExtension(int16 saveFormat);

/// The number with as many digits as the count: 7 of 120 is "007". A longer number is cut to its last digits.
[[nodiscard]] QString PaddedNumber(int number, int count);

/// "Large prefix 007 Sword.jpg", without outer spaces. `kind` is empty for standard cards.
[[nodiscard]] QString ImageName(const SetHeader& header, const QString& kind, const QString& fileName,
                                int index, int count);

/// "base Sheet 02.jpg" or "base Sheet Large 02.jpg". The base is the prefix, or the set's name if that is
/// empty.
/// Kept: the number of digits counts one copy of each card.
[[nodiscard]] QString SheetName(const SetHeader& header, const QString& sheet, int sheetNumber, int cardCount,
                                int cardsPerSheet);

} // namespace deckforge
