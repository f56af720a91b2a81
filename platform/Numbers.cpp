// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Numbers.h"

#include "platform/RunTimeError.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace deckforge {

namespace {

template <class Integer>
Integer ToInteger(double value)
{
    const double rounded = std::nearbyint(value); // rounds halves to even
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<Integer>(rounded);
}

QByteArrayView Trimmed(QByteArrayView text)
{
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

/// "-", 15 digits, a point and "E+308".
constexpr int NumberBufferSize = 32;

void AppendPadded(QByteArray& line, QByteArrayView number)
{
    if (!number.startsWith('-'))
        line.append(' ');
    line.append(number);
    line.append(' ');
}

} // namespace

int16 ToInt16(double value)
{
    return ToInteger<int16>(value);
}

int32 ToInt32(double value)
{
    return ToInteger<int32>(value);
}

int16 CheckedAdd(int16 count, int16 more)
{
    return ToInt16(static_cast<double>(count) + more);
}

double NumberFromText(QByteArrayView text)
{
    QByteArrayView digits = Trimmed(text);
    if (digits.startsWith('+') && !digits.startsWith("+-"))
        digits = digits.sliced(1);
    double value = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), value);
    if (error == std::errc::result_out_of_range)
        throw RunTimeError(ErrorNumber::Overflow);
    // from_chars also accepts "inf" and "nan".
    if (error != std::errc() || end != digits.end() || !std::isfinite(value))
        throw RunTimeError(ErrorNumber::TypeMismatch);
    return value;
}

bool BooleanFromText(QByteArrayView text)
{
    const QByteArrayView word = Trimmed(text);
    if (word.compare("True", Qt::CaseInsensitive) == 0)
        return true;
    if (word.compare("False", Qt::CaseInsensitive) == 0)
        return false;
    return NumberFromText(word) != 0;
}

void AppendNumber(QByteArray& line, int32 value)
{
    char digits[NumberBufferSize];
    AppendPadded(line, {digits, std::to_chars(digits, std::end(digits), value).ptr});
}

void AppendNumber(QByteArray& line, double value)
{
    constexpr int significantDigits = 15;
    char digits[NumberBufferSize];
    constexpr double largest = 1.79769313486231E+308; // one more in the last digit would overflow
    const double unsignedZero = value == 0 ? 0 : std::clamp(value, -largest, largest);
    char* end =
        std::to_chars(digits, std::end(digits), unsignedZero, std::chars_format::general, significantDigits)
            .ptr;
    std::replace(digits, end, 'e', 'E');
    AppendPadded(line, {digits, end});
}

} // namespace deckforge
