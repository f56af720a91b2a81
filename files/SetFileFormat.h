// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Records.h"
#include "platform/RunTimeError.h"

#include <QByteArrayView>
#include <array>
#include <limits>

namespace deckforge::setFile {

inline constexpr char Signature[] = "Amber Gnome - Varnhelm Deck Foundry";
inline constexpr char Start[] = "-- START --";
inline constexpr char End[] = "-- END --";
inline constexpr int16 CurrentVersion = 10;

inline constexpr char LineEnd[] = "\r\n";   ///< ends a line of the file and of a text
inline constexpr char FlattenedBreak = '|'; ///< replaces the line ends of a text in the file

// Limits for untrusted files. The largest real set, with 32,767 cards of each kind and pages of text on each,
// is far below them.
inline constexpr qint64 MaxBytes = qint64(1) << 30;
inline constexpr qsizetype MaxLineBytes = qsizetype(1) << 16; ///< without the line end

/// The version that added a field; by default it is in files of all versions.
struct Since {
    int16 Version = std::numeric_limits<int16>::min();
};

[[noreturn]] inline void ThrowLongLine()
{
    throw RunTimeError(ErrorNumber::Overflow,
                       QStringLiteral("A line of a set file has %1 characters at most").arg(MaxLineBytes));
}

/// The position of the first line end; -1 if there is none.
[[nodiscard]] inline qsizetype FindLineEnd(QByteArrayView bytes)
{
    qsizetype at = bytes.indexOf('\r');
    while (at >= 0 && (at + 1 == bytes.size() || bytes[at + 1] != '\n'))
        at = bytes.indexOf('\r', at + 1);
    return at;
}

/// The fonts in file order, which differs from the order in the record.
inline constexpr std::array<FontSpec SetHeader::*, 13> Fonts = {
    &SetHeader::FontTitle,       &SetHeader::FontType,
    &SetHeader::FontNumber,      &SetHeader::FontBold,
    &SetHeader::FontInformation, &SetHeader::FontAutonumber,
    &SetHeader::FontTitleLarge,  &SetHeader::FontInformationLarge,
    &SetHeader::FontCharacter,   &SetHeader::FontSpecialTitle,
    &SetHeader::FontSpecial,     &SetHeader::FontAlignment,
    &SetHeader::FontPlayingPiece};

/// The number of fonts in files before version 9.
inline constexpr std::size_t FontCountBefore9 = 6;

} // namespace deckforge::setFile
