#pragma once

#include "core/Records.h"

#include <QString>

namespace deckforge {

/// "bmp", "jpg" or "gif"; empty for a format that there is not.
[[nodiscard]] QString ImageExtension(int16 saveFormat);

/// The card's number as long as the count: 7 of 120 is "007".
[[nodiscard]] QString PaddedNumber(int number, int count);

/// "prefix 007 Sword.jpg", blanks at its ends trimmed. The kind of card stands in front of the prefix where
/// there is one to tell: "Large ".
[[nodiscard]] QString ImageName(const SetHeader& header, const QString& kind, const QString& fileName,
                                int index, int count);

} // namespace deckforge
