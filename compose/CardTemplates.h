// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Box.h"

#include <array>

namespace deckforge {

// The templates of all kinds of card: the boxes that the preview shows. The Show functions lay them out from
// a record, and the composers read their positions.

// Sizes of cards in pixels: 40 mm and 80 mm wide at 96 pixels per inch.
inline constexpr QSize CardSize = {152, 256};
inline constexpr QSize DoubleCardSize = {304, 256}; ///< large cards and characters

/// A standard card. picImage is inside picFrame; all other boxes except picBack are on picCard.
struct CardTemplate {
    explicit CardTemplate(int scale);

    Box picCard;
    std::array<Box, 4> lblType; ///< upper line left and right, second line left and right
    Box lblNumber;
    Box lblTitle;
    Box picFrame; ///< clip window of the picture
    Box picImage;
    Box lblPicSize; ///< the handle under the frame
    Box lblBold;
    Box lblInformation;
    Box lblAutonumber;
    Box lblWatermark;
    Box picSymbol;
    Box picArtistDest; ///< the artist's credit, rotated

    Box picBack;
};

/// A large card. picImageLarge is inside picFrameLarge; all other boxes except picBackLarge are on
/// picCardLarge.
struct LargeCardTemplate {
    explicit LargeCardTemplate(int scale);

    Box picCardLarge;
    Box picFrameLarge;
    Box picImageLarge;
    Box lblPicSizeLarge; ///< the handle at the frame's right side
    Box lblTitleLarge;
    Box lblInformationLarge;
    Box lblAutonumberLarge;
    Box lblWatermark;
    Box picSymbolLarge;

    Box picBackLarge;
};

/// A character card. The first group is on picCharacter, the second on the panel picBackgroundChar.
struct CharacterTemplate {
    explicit CharacterTemplate(int scale);

    Box picCharacter;
    Box lblCharacter;
    Box lblObjects;
    Box lblFollowers;
    std::array<Box, 4> picCharAttrDisp; ///< strength, craft, gold, lives

    Box picBackgroundChar;
    Box picFrameCharacter;
    Box picImageCharacter;
    Box lblPicSizeCharacter;
    Box lblAlignmentTitle;
    Box lblAlignment;
    Box lblStartTitle;
    Box lblStart;
    Box lblSpecialTitle;
    Box lblSpecial;
    Box lblAutonumberCharacter;
    Box lblWatermark;
    Box picSymbolCharacter;

    Box picCharacterBack;
};

/// The stand-up piece of a character.
struct PlayingPieceTemplate {
    explicit PlayingPieceTemplate(int scale);

    Box picPlayingPiece;
    Box lblPlayingPieceName;
    Box picPlayingPieceFrame;
    Box picPlayingPieceImage;
    Box CutLine;
    Box lblWatermark;
};

/// A user-designed back, in landscape format.
struct NewBackTemplate {
    explicit NewBackTemplate(int scale);

    Box picNewBack;
    Box lblBackTitle; ///< as large as its text, centred on TitleCentre
    Box lblWatermark;

    static constexpr QPoint TitleCentre = {128, 76};
};

/// All templates, with surfaces of the same scale.
struct CardTemplates {
    explicit CardTemplates(int scale);

    CardTemplate Standard;
    LargeCardTemplate Large;
    CharacterTemplate Character;
    PlayingPieceTemplate PlayingPiece;
    NewBackTemplate NewBack;

    [[nodiscard]] std::array<Box*, 5> lblWatermark();
};

} // namespace deckforge
