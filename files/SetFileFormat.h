// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Records.h"
#include "platform/RunTimeError.h"

#include <QByteArrayView>
#include <array>

namespace deckforge::setFile {

// What the writer and the reader of set files share.

inline constexpr char Signature[] = "Amber Gnome - Varnhelm Deck Foundry";
inline constexpr char Start[] = "-- START --";
inline constexpr char End[] = "-- END --";
inline constexpr int16 CurrentVersion = 10;

inline constexpr char LineEnd[] = "\r\n";   ///< of a line of the file, and in a text of several lines ...
inline constexpr char FlattenedBreak = '|'; ///< ... which is this where such a text stands on one line

// What a set file may hold. The largest set, 32,767 of each kind with pages of text on each card, is far
// below it; files from strangers are not, and no control can show a text of megabytes.
inline constexpr qint64 MaxBytes = qint64(1) << 30;
inline constexpr qsizetype MaxLineBytes = qsizetype(1) << 16; ///< without its end

[[noreturn]] inline void ThrowLongLine()
{
    throw RunTimeError(ErrorNumber::Overflow,
                       QStringLiteral("A line of a set file has %1 characters at most").arg(MaxLineBytes));
}

/// Where the first line end of the bytes is; -1 where there is none.
[[nodiscard]] inline qsizetype FindLineEnd(QByteArrayView bytes)
{
    qsizetype at = bytes.indexOf('\r');
    while (at >= 0 && (at + 1 == bytes.size() || bytes[at + 1] != '\n'))
        at = bytes.indexOf('\r', at + 1);
    return at;
}

/// The fonts in the order of the file, which is not the one of the record.
inline constexpr std::array<FontSpec SetHeader::*, 13> Fonts = {
    &SetHeader::FontTitle,       &SetHeader::FontType,
    &SetHeader::FontNumber,      &SetHeader::FontBold,
    &SetHeader::FontInformation, &SetHeader::FontAutonumber,
    &SetHeader::FontTitleLarge,  &SetHeader::FontInformationLarge,
    &SetHeader::FontCharacter,   &SetHeader::FontSpecialTitle,
    &SetHeader::FontSpecial,     &SetHeader::FontAlignment,
    &SetHeader::FontPlayingPiece};

/// How many of them files below version 9 have.
inline constexpr std::size_t FontCountBefore9 = 6;

} // namespace deckforge::setFile
