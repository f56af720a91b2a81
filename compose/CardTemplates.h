// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Box.h"

#include <array>

namespace deckforge {

// The templates of all kinds of card: the boxes that the preview shows. The Show functions lay them out from
// a record, and the composers read their positions.
//
// A box is declared with its parent, its place, and what differs from a label. The order of the boxes is that
// of painting: parents before children, labels behind pictures, the symbol on top. It is also the order in
// which PrintTexts prints the texts.

// Sizes of cards in pixels: 40 mm and 80 mm wide at 96 pixels per inch.
inline constexpr QSize CardSize = {152, 256};
inline constexpr QSize DoubleCardSize = {304, 256}; ///< large cards and characters

/// The position of a card's front on the preview. The back of a standard card is at its right; other backs
/// are shown at the same position.
inline constexpr QPoint FrontCorner = {8, 267};

// Boxes that several templates have.
[[nodiscard]] BoxDesign WholeCard(bool isVisible = false); ///< a surface that shows a whole card
[[nodiscard]] BoxDesign CardNumber(Alignment align, int fontClicks);
[[nodiscard]] BoxDesign VersionMark();

/// A standard card.
struct CardTemplate : BoxList {
    explicit CardTemplate(int scale);

    Box picCard{*this, {FrontCorner, CardSize}, WholeCard(true)};
    /// Upper line left and right, second line left and right.
    std::array<Box, 4> lblType{{{picCard, {5, 3, 57, 12}, TypeName(Alignment::Left)},
                                {picCard, {88, 3, 56, 12}, TypeName(Alignment::Right)},
                                {picCard, {5, 15, 57, 12}, TypeName(Alignment::Left)},
                                {picCard, {88, 15, 57, 12}, TypeName(Alignment::Right)}}};
    Box lblNumber{picCard,
                  {66, 8, 17, 17},
                  {.Align = Alignment::Centre,
                   .Form = TextForm::Line,
                   .FontOfSet = &SetHeader::FontNumber,
                   .FontClicks = 2}};
    Box lblTitle{picCard,
                 {5, 28, 139, 13},
                 {.Align = Alignment::Centre, .FontOfSet = &SetHeader::FontTitle, .FontClicks = 2}};
    Box lblPicSize{picCard, {5, 144, 138, 3}, {.Drag = DragAxis::UpDown}}; ///< the handle under the frame
    Box lblBold{picCard,
                {5, 148, 139, 1},
                {.Align = Alignment::Centre,
                 .Form = TextForm::Line,
                 .FontOfSet = &SetHeader::FontBold,
                 .FontClicks = 2}};
    Box lblInformation{
        picCard,
        {5, 151, 139, 90},
        {.Form = TextForm::Wrapped, .FontOfSet = &SetHeader::FontInformation, .FontClicks = 2}};
    Box lblAutonumber{picCard, {134, 245, 13, 9}, CardNumber(Alignment::Right, 2)};
    Box lblWatermark{picCard, {55, 245, 40, 9}, VersionMark()};
    /// Clip window of the picture.
    Box picFrame{picCard, {5, 40, 139, 105}, {.Look = BoxLook::Frame, .Outlined = true}};
    Box picImage{picFrame, {0, 0, 139, 105}, {.Look = BoxLook::Picture, .Drag = DragAxis::All}};
    /// The artist's credit, rotated.
    Box picArtistDest{picCard, {0, 40, 5, 180}, {.Look = BoxLook::Surface, .Visible = false}};
    Box picSymbol{picCard, {0, 245, 5, 5}, {.Look = BoxLook::Surface, .Visible = false}};

    Box picBack{*this, {FrontCorner + QPoint(CardSize.width(), 0), CardSize}, WholeCard(true)};

private:
    static BoxDesign TypeName(Alignment align);
};

/// A large card.
struct LargeCardTemplate : BoxList {
    explicit LargeCardTemplate(int scale);

    Box picCardLarge{*this, {FrontCorner, DoubleCardSize}, WholeCard()};
    /// The handle at the frame's right side.
    Box lblPicSizeLarge{picCardLarge, {128, 8, 5, 238}, {.Drag = DragAxis::LeftRight}};
    Box lblTitleLarge{
        picCardLarge,
        {134, 8, 162, 25},
        {.Align = Alignment::Centre, .Form = TextForm::Wrapped, .FontOfSet = &SetHeader::FontTitleLarge}};
    /// Kept: always at the top of its place, even if a long title overlaps it.
    Box lblInformationLarge{picCardLarge,
                            {134, 32, 162, 212},
                            {.Form = TextForm::Wrapped, .FontOfSet = &SetHeader::FontInformationLarge}};
    Box lblAutonumberLarge{picCardLarge, {0, 246, 13, 9}, CardNumber(Alignment::Left, 0)};
    Box lblWatermark{picCardLarge, {132, 246, 40, 9}, VersionMark()};
    Box picFrameLarge{picCardLarge, {8, 8, 121, 238}, {.Look = BoxLook::Frame, .Outlined = true}};
    Box picImageLarge{picFrameLarge, {0, 0, 121, 238}, {.Look = BoxLook::Picture, .Drag = DragAxis::All}};
    Box picSymbolLarge{picCardLarge, {294, 246, 9, 9}, {.Look = BoxLook::Surface, .Visible = false}};

    Box picBackLarge{*this, {FrontCorner, DoubleCardSize}, WholeCard()};
};

/// A character card.
struct CharacterTemplate : BoxList {
    explicit CharacterTemplate(int scale);

    Box picCharacter{*this, {FrontCorner, DoubleCardSize}, WholeCard()};
    Box lblCharacter{picCharacter, {80, 0, 140, 13}, WhiteText({}, &SetHeader::FontCharacter)};
    // Printed in the font of the name before them.
    Box lblObjects{picCharacter, {46, 242, 71, 12}, WhiteText(QStringLiteral("OBJECTS"))};
    Box lblFollowers{picCharacter, {185, 242, 71, 12}, WhiteText(QStringLiteral("FOLLOWERS"))};
    /// Strength, craft, gold, lives.
    std::array<Box, 4> picCharAttrDisp{{{picCharacter, {0, 44, 12, 52}, {.Look = BoxLook::Surface}},
                                        {picCharacter, {0, 159, 12, 52}, {.Look = BoxLook::Surface}},
                                        {picCharacter, {290, 44, 12, 52}, {.Look = BoxLook::Surface}},
                                        {picCharacter, {290, 159, 12, 52}, {.Look = BoxLook::Surface}}}};

    Box picBackgroundChar{picCharacter, {13, 13, 276, 228}, {.Look = BoxLook::Surface}}; ///< the panel
    Box lblPicSizeCharacter{picBackgroundChar, {122, 1, 5, 220}, {.Drag = DragAxis::LeftRight}};
    Box lblAlignmentTitle{picBackgroundChar, {128, 3, 65, 12}, Detail(QStringLiteral("ALIGNMENT:"))};
    Box lblAlignment{picBackgroundChar, {193, 3, 79, 12}, Detail()};
    Box lblStartTitle{picBackgroundChar, {128, 15, 41, 12}, Detail(QStringLiteral("START:"))};
    Box lblStart{picBackgroundChar, {169, 15, 103, 12}, Detail()};
    Box lblSpecialTitle{picBackgroundChar,
                        {128, 28, 144, 11},
                        {.Caption = QStringLiteral("SPECIAL ABILITIES"),
                         .Align = Alignment::Centre,
                         .Form = TextForm::Line,
                         .FontOfSet = &SetHeader::FontSpecialTitle}};
    Box lblSpecial{picBackgroundChar,
                   {128, 43, 144, 177},
                   {.Form = TextForm::Wrapped, .FontOfSet = &SetHeader::FontSpecial}};
    Box lblAutonumberCharacter{picBackgroundChar, {2, 220, 13, 9}, CardNumber(Alignment::Left, 0)};
    Box lblWatermark{picBackgroundChar, {113, 220, 40, 9}, VersionMark()};
    Box picFrameCharacter{picBackgroundChar, {1, 1, 121, 220}, {.Look = BoxLook::Frame}};
    Box picImageCharacter{
        picFrameCharacter, {0, 0, 121, 220}, {.Look = BoxLook::Picture, .Drag = DragAxis::All}};
    Box picSymbolCharacter{picBackgroundChar, {265, 218, 9, 9}, {.Look = BoxLook::Surface, .Visible = false}};

    Box picCharacterBack{*this, {FrontCorner, DoubleCardSize}, WholeCard()};

private:
    static BoxDesign WhiteText(const QString& caption, FontSpec SetHeader::*fontOfSet = nullptr);
    static BoxDesign Detail(const QString& caption = {});
};

/// The stand-up piece of a character.
struct PlayingPieceTemplate : BoxList {
    explicit PlayingPieceTemplate(int scale);

    Box picPlayingPiece{*this, {FrontCorner, CardSize}, WholeCard()};
    Box lblPlayingPieceName{picPlayingPiece,
                            {8, 10, 132, 13},
                            {.Align = Alignment::Centre, .FontOfSet = &SetHeader::FontPlayingPiece}};
    Box lblWatermark{picPlayingPiece, {0, 246, 152, 9}, VersionMark()};
    Box CutLine{picPlayingPiece, {8, 8, 134, 239}, {.Look = BoxLook::Outline, .Outlined = true}};
    Box picPlayingPieceFrame{picPlayingPiece, {9, 24, 132, 222}, {.Look = BoxLook::WhiteFrame}};
    Box picPlayingPieceImage{
        picPlayingPieceFrame, {0, 0, 132, 222}, {.Look = BoxLook::Picture, .Drag = DragAxis::All}};
};

/// A user-designed back, in landscape format.
struct NewBackTemplate : BoxList {
    explicit NewBackTemplate(int scale);

    Box picNewBack{*this, {FrontCorner, CardSize.transposed()}, WholeCard()};
    /// As large as its text, centred on TitleCentre.
    Box lblBackTitle{picNewBack, {112, 48, 26, 13}, {.Align = Alignment::Centre}};
    Box lblWatermark{picNewBack, {0, 142, 255, 9}, VersionMark()};

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

    [[nodiscard]] std::vector<Box*> Boxes() const; ///< in painting order
};

} // namespace deckforge
