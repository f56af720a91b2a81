// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/FontSpec.h"

#include <array>

namespace deckforge {

// The records of a card set. An empty text means that the field is not set.
//
// Picture fields hold the full path of a file. Offsets of pictures are in twips from the top left corner of
// the frame and may be negative; sizes of frames are in pixels of the card.

/// The default font.
[[nodiscard]] inline FontSpec SmallFont(double size, bool bold = false, Colour colour = Black)
{
    return {
        .Name = QStringLiteral("Small Fonts"), .Size = size, .Bold = bold, .Italic = false, .Color = colour};
}

/// The settings of the set.
struct SetHeader {
    QString SetName;
    QString FileName; ///< full path of the set file, from the save dialog
    QString SaveTo;   ///< folder of created images
    bool Autonumber = false;
    QString Symbol;
    QString FilenamePrefix;
    bool FileNr = false; ///< file names contain the number of the card
    bool NoBack = false;
    bool ReplaceSpace = false;
    int16 SaveFormat = 0; ///< a row of SaveFormats(), from 0
    FontSpec FontType;
    FontSpec FontNumber;
    FontSpec FontTitle;
    FontSpec FontBold;
    FontSpec FontInformation;
    FontSpec FontAutonumber;
    FontSpec FontTitleLarge;
    FontSpec FontInformationLarge;
    FontSpec FontCharacter;
    FontSpec FontSpecialTitle;
    FontSpec FontSpecial;
    FontSpec FontAlignment;
    FontSpec FontPlayingPiece;
    Colour ArtistColor = Black;

    friend bool operator==(const SetHeader&, const SetHeader&) = default;
};

/// One row of the table of card types.
struct CardType {
    QString Name;    ///< first part, printed on the upper type line
    QString SubName; ///< second part
    QString ReversedName;
    QString ReversedSubName;
    int16 Number = 0; ///< printed on cards of this type; -1 for none
    bool BuiltIn = false;

    friend bool operator==(const CardType&, const CardType&) = default;
};

/// One row of the table of card backs.
struct CardBack {
    QString Name;
    QString Picture; ///< empty for built-in rows, whose art is found by row
    bool BuiltIn = false;

    friend bool operator==(const CardBack&, const CardBack&) = default;
};

/// A standard card.
struct Card {
    QString Title;
    int16 Copies = 0;
    QString Type;
    QString SubType;
    QString TypeReversed;
    QString SubTypeReversed;
    bool OneLine = false;
    int16 TypeIndex = 0; ///< row of CardTypes; -1 for text not in the table, 0 if none was chosen yet
    QString Number;
    bool ShowPicture = false;
    QString Picture;
    double PictureTop = 0;
    double PictureLeft = 0;
    int16 FrameHeight = 0;
    bool Frame = false;
    bool Resize = false; ///< the frame is as wide as the picture and moves sideways in its place
    QString Artist;
    QString BoldText;
    QString Info; ///< lines are separated by CR LF
    QString Background;
    int16 CardBack = 0; ///< row of CardBacks
    Colour Color = Black;
    QString Filename; ///< name of the image last created, without folder and extension

    friend bool operator==(const Card&, const Card&) = default;
};

/// A double-width card.
struct LargeCard {
    QString Title;
    int16 Copies = 0;
    bool ShowPicture = false;
    QString Picture;
    double PictureTop = 0;
    double PictureLeft = 0;
    int16 FrameHeight = 0; ///< Kept: the width of the frame
    bool Frame = false;
    bool Resize = false; ///< the frame is as high as the picture and moves up and down in its place
    QString Info;        ///< lines are separated by CR LF
    QString Background;
    QString CardBack; ///< picture file of the back
    Colour Color = Black;
    QString Filename;

    friend bool operator==(const LargeCard&, const LargeCard&) = default;
};

/// A character card and its stand-up playing piece. The attributes are text, since they can be "---".
struct Character {
    QString Name;
    QString StartArea;
    QString Alignment;
    QString Strength;
    QString Craft;
    QString Gold;
    QString Lives;
    QString SpecialAbilities; ///< lines are separated by CR LF
    QString Picture;
    double PictureTop = 0;
    double PictureLeft = 0;
    int16 FrameHeight = 0; ///< Kept: the width of the frame
    bool ShowPicture = false;
    bool Frame = false;
    QString Background;
    QString Filename;
    int16 CardBack = 0; ///< a row of CharacterBackNames(), from 0
    QString CardBackPicture;
    QString PlayingPiece;
    double PlayingPieceTop = 0;
    double PlayingPieceLeft = 0;

    friend bool operator==(const Character&, const Character&) = default;
};

/// The attributes of a character in the order of their strips and lists.
inline constexpr std::array<QString Character::*, 4> CharacterAttributes = {
    &Character::Strength, &Character::Craft, &Character::Gold, &Character::Lives};

/// A card back that the user designs.
struct NewCardBack {
    QString Name;
    QString Filename;
    QString BackText;
    FontSpec Font;
    Colour InnerColor = Black;
    Colour FrameColor = Black;
    Colour BackColor = Black;
    bool UsePicture = false;
    QString Picture;

    friend bool operator==(const NewCardBack&, const NewCardBack&) = default;
};

} // namespace deckforge
