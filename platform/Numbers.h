// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Types.h"

#include <QByteArray>
#include <QByteArrayView>

namespace deckforge {

/// The nearest 16-bit integer, halves to even. Error 6 if out of range or NaN.
[[nodiscard]] int16 ToInt16(double value);

/// The same for 32 bits.
[[nodiscard]] int32 ToInt32(double value);

/// The sum of two counts. Error 6 past 32767.
[[nodiscard]] int16 CheckedAdd(int16 count, int16 more);

/// Parses a decimal number with a point, independent of the locale; surrounding blanks are allowed. Error 13
/// if the text is not a number, 6 if it overflows a double.
[[nodiscard]] double NumberFromText(QByteArrayView text);

/// "True" and "False" in any case, or a number, where all but 0 are true. Error 13 otherwise.
[[nodiscard]] bool BooleanFromText(QByteArrayView text);

/// Appends an integer as set files have it: preceded by a blank or "-", followed by a blank.
void AppendNumber(QByteArray& line, int32 value);

/// The same for a real number, with as few digits as needed, at most 15 significant ones.
void AppendNumber(QByteArray& line, double value);

} // namespace deckforge
