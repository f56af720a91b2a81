#pragma once

#include "core/Records.h"

#include <array>

namespace deckforge::setFile {

// What the writer and the reader of set files share.

inline constexpr char Signature[] = "Amber Gnome - Varnhelm Deck Foundry";
inline constexpr char Start[] = "-- START --";
inline constexpr char End[] = "-- END --";
inline constexpr int16 CurrentVersion = 10;

inline constexpr char LineEnd[] = "\r\n";
inline constexpr QLatin1String LineBreak("\r\n"); ///< in a text of several lines ...
inline constexpr QChar FlattenedBreak(u'|');      ///< ... and what it is on its one line in the file

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
inline constexpr std::size_t FontsOfOldFiles = 6;

} // namespace deckforge::setFile
