#pragma once

#include "platform/Types.h"

#include <QByteArray>
#include <QByteArrayView>

namespace deckforge {

/// The nearest 16-bit integer, halves to the even neighbour. Error 6 outside its range and for a NaN.
[[nodiscard]] int16 ToInt16(double value);

/// The same for 32 bits.
[[nodiscard]] int32 ToInt32(double value);

/// count + 1 and the like on counts and indices. Error 6 past 32767.
[[nodiscard]] int16 CheckedAdd(int16 count, int16 more);

/// Reads a decimal number, blanks round it allowed, the point as separator whatever the locale.
/// Error 13 when the text is no number, 6 when a double cannot hold it.
[[nodiscard]] double NumberFromText(QByteArrayView text);

/// "True" and "False" in any case, or a number, of which all but 0 are true. Error 13 otherwise.
[[nodiscard]] bool BooleanFromText(QByteArrayView text);

/// An integer as a line of a set file has it: a blank or "-" before the digits, and a blank behind them.
void AppendNumber(QByteArray& line, int32 value);

/// A real the same way, with as few digits as it needs, at most 15 significant.
void AppendNumber(QByteArray& line, double value);

} // namespace deckforge
