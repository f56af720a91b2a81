// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/CardTemplates.h"

namespace deckforge {

namespace {

constexpr double TinyPoints = 5.25;
constexpr double LabelPoints = 6.75;

Box Label(const char* name, QRect place, Alignment align = Alignment::Left)
{
    Box box{.Name = QString::fromLatin1(name)};
    box.Left = place.x();
    box.Top = place.y();
    box.Width = place.width();
    box.Height = place.height();
    box.Font = SmallFont(LabelPoints);
    box.Align = align;
    return box;
}

/// A label whose text is fixed.
Box Caption(const char* name, QRect place, const char* text, Alignment align = Alignment::Left)
{
    Box box = Label(name, place, align);
    box.Caption = QString::fromLatin1(text);
    return box;
}

/// The number of the card in the set.
Box Number(const char* name, QRect place, Alignment align = Alignment::Left)
{
    Box box = Label(name, place, align);
    box.Font = SmallFont(TinyPoints);
    box.Visible = false;
    return box;
}

Box Hidden(Box box)
{
    box.Visible = false;
    return box;
}

Box Bordered(Box box)
{
    box.Border = BorderStyle::Single;
    return box;
}

/// Gives the box a surface inside its border.
Box Surface(Box box, int scale)
{
    const int border = 2 * box.BorderWidth();
    box.Surface.emplace(QSize(box.Width - border, box.Height - border), scale);
    box.Design = {box.Width, box.Height};
    return box;
}

Box PictureAt(const char* name, QRect place, int scale)
{
    return Surface(Label(name, place), scale);
}

/// The position of a card's front on the preview. The back of a standard card is at its right; other backs
/// are shown at the same position.
constexpr QPoint FrontCorner = {8, 267};

/// A surface that shows a whole card, with a border of one pixel.
Box CardSurface(const char* name, QSize size, int scale, QPoint corner = FrontCorner)
{
    return Surface(Bordered(Label(name, {corner, size})), scale);
}

Box Watermark(QRect place)
{
    Box box = Label("lblWatermark", place, Alignment::Centre);
    box.Font = SmallFont(TinyPoints, false, LightGrey);
    return box;
}

Box WhiteCaption(const char* name, QRect place, const char* text)
{
    Box box = Caption(name, place, text, Alignment::Centre);
    box.Font = SmallFont(LabelPoints, true, White);
    return box;
}

Box BlackStrip(const char* name, QRect place, int scale)
{
    Box box = PictureAt(name, place, scale);
    box.Surface->SetBackColor(Black);
    return box;
}

} // namespace

// Each row: name; left, top, width and height; alignment. A whole card has only a size.

CardTemplate::CardTemplate(int scale)
    : picCard(CardSurface("picCard", CardSize, scale)),
      lblType{{Label("lblType(0)", {5, 3, 57, 12}), Label("lblType(1)", {88, 3, 56, 12}, Alignment::Right),
               Label("lblType(2)", {5, 15, 57, 12}),
               Label("lblType(3)", {88, 15, 57, 12}, Alignment::Right)}},
      lblNumber(Label("lblNumber", {66, 8, 17, 17}, Alignment::Centre)),
      lblTitle(Label("lblTitle", {5, 28, 139, 13}, Alignment::Centre)),
      picFrame(Bordered(Label("picFrame", {5, 40, 139, 105}))),
      picImage(PictureAt("picImage", {0, 0, 139, 105}, scale)),
      lblPicSize(Label("lblPicSize", {5, 144, 138, 3})),
      lblBold(Label("lblBold", {5, 148, 139, 1}, Alignment::Centre)),
      lblInformation(Label("lblInformation", {5, 151, 139, 90})),
      lblAutonumber(Number("lblAutonumber", {134, 245, 13, 9}, Alignment::Right)),
      lblWatermark(Watermark({55, 245, 40, 9})),
      picSymbol(Hidden(PictureAt("picSymbol", {0, 245, 5, 5}, scale))),
      picArtistDest(Hidden(PictureAt("picArtistDest", {0, 40, 5, 180}, scale))),
      picBack(CardSurface("picBack", CardSize, scale, FrontCorner + QPoint(CardSize.width(), 0)))
{
}

LargeCardTemplate::LargeCardTemplate(int scale)
    : picCardLarge(Hidden(CardSurface("picCardLarge", DoubleCardSize, scale))),
      picFrameLarge(Bordered(Label("picFrameLarge", {8, 8, 121, 238}))),
      picImageLarge(PictureAt("picImageLarge", {0, 0, 121, 238}, scale)),
      lblPicSizeLarge(Label("lblPicSizeLarge", {128, 8, 5, 238})),
      lblTitleLarge(Label("lblTitleLarge", {134, 8, 162, 25}, Alignment::Centre)),
      lblInformationLarge(Label("lblInformationLarge", {134, 32, 162, 212})),
      lblAutonumberLarge(Number("lblAutonumberLarge", {0, 246, 13, 9})),
      lblWatermark(Watermark({132, 246, 40, 9})),
      picSymbolLarge(Hidden(PictureAt("picSymbolLarge", {294, 246, 9, 9}, scale))),
      picBackLarge(Hidden(CardSurface("picBackLarge", DoubleCardSize, scale)))
{
}

CharacterTemplate::CharacterTemplate(int scale)
    : picCharacter(Hidden(CardSurface("picCharacter", DoubleCardSize, scale))),
      lblCharacter(WhiteCaption("lblCharacter", {80, 0, 140, 13}, "")),
      lblObjects(WhiteCaption("lblObjects", {46, 242, 71, 12}, "OBJECTS")),
      lblFollowers(WhiteCaption("lblFollowers", {185, 242, 71, 12}, "FOLLOWERS")),
      picCharAttrDisp{{BlackStrip("picCharAttrDisp(0)", {0, 44, 12, 52}, scale),
                       BlackStrip("picCharAttrDisp(1)", {0, 159, 12, 52}, scale),
                       BlackStrip("picCharAttrDisp(2)", {290, 44, 12, 52}, scale),
                       BlackStrip("picCharAttrDisp(3)", {290, 159, 12, 52}, scale)}},
      picBackgroundChar(PictureAt("picBackgroundChar", {13, 13, 276, 228}, scale)),
      picFrameCharacter(Label("picFrameCharacter", {1, 1, 121, 220})),
      picImageCharacter(PictureAt("picImageCharacter", {0, 0, 121, 220}, scale)),
      lblPicSizeCharacter(Label("lblPicSizeCharacter", {122, 1, 5, 220})),
      lblAlignmentTitle(Caption("lblAlignmentTitle", {128, 3, 65, 12}, "ALIGNMENT:")),
      lblAlignment(Label("lblAlignment", {193, 3, 79, 12})),
      lblStartTitle(Caption("lblStartTitle", {128, 15, 41, 12}, "START:")),
      lblStart(Label("lblStart", {169, 15, 103, 12})),
      lblSpecialTitle(Caption("lblSpecialTitle", {128, 28, 144, 11}, "SPECIAL ABILITIES", Alignment::Centre)),
      lblSpecial(Label("lblSpecial", {128, 43, 144, 177})),
      lblAutonumberCharacter(Number("lblAutonumberCharacter", {2, 220, 13, 9})),
      lblWatermark(Watermark({113, 220, 40, 9})),
      picSymbolCharacter(Hidden(PictureAt("picSymbolCharacter", {265, 218, 9, 9}, scale))),
      picCharacterBack(Hidden(CardSurface("picCharacterBack", DoubleCardSize, scale)))
{
}

PlayingPieceTemplate::PlayingPieceTemplate(int scale)
    : picPlayingPiece(Hidden(CardSurface("picPlayingPiece", CardSize, scale))),
      lblPlayingPieceName(Label("lblPlayingPieceName", {8, 10, 132, 13}, Alignment::Centre)),
      picPlayingPieceFrame(Label("picPlayingPieceFrame", {9, 24, 132, 222})),
      picPlayingPieceImage(PictureAt("picPlayingPieceImage", {0, 0, 132, 222}, scale)),
      CutLine(Bordered(Label("CutLine", {8, 8, 134, 239}))), lblWatermark(Watermark({0, 246, 152, 9}))
{
}

NewBackTemplate::NewBackTemplate(int scale)
    : picNewBack(Hidden(CardSurface("picNewBack", CardSize.transposed(), scale))),
      lblBackTitle(Label("lblBackTitle", {112, 48, 26, 13}, Alignment::Centre)),
      lblWatermark(Watermark({0, 142, 255, 9}))
{
}

CardTemplates::CardTemplates(int scale)
    : Standard(scale), Large(scale), Character(scale), PlayingPiece(scale), NewBack(scale)
{
}

std::array<Box*, 5> CardTemplates::lblWatermark()
{
    return {&Standard.lblWatermark, &Large.lblWatermark, &Character.lblWatermark, &PlayingPiece.lblWatermark,
            &NewBack.lblWatermark};
}

} // namespace deckforge
