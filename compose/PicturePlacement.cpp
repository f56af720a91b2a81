// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/PicturePlacement.h"

#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/StandardCard.h"
#include "platform/Twips.h"

#include <algorithm>

namespace deckforge {

namespace {

/// A picture with its frame and the offsets of the record.
struct PictureRow {
    const Box& Frame;
    const Box& Measured; ///< the picture whose size End and Page Down use
    double& Left;
    double& Top;
    void (*Place)(Workshop&, int16);
    int16 Index;

    void Apply(Workshop& workshop) const { Place(workshop, Index); }
};

PictureRow RowOf(Workshop& workshop, PlacedPicture which)
{
    CardTemplates& t = workshop.Templates;
    CardSet& set = workshop.Set;
    switch (which) {
    case PlacedPicture::Standard: {
        Card& card = set.Cards[set.Cards.Current];
        return {t.Standard.picFrame, t.Standard.picImage, card.PictureLeft,
                card.PictureTop,     &PlaceCardPicture,   set.Cards.Current};
    }
    case PlacedPicture::Large: {
        LargeCard& card = set.LargeCards[set.LargeCards.Current];
        // Kept: End and Page Down use the size of the standard card's picture.
        return {t.Large.picFrameLarge, t.Standard.picImage, card.PictureLeft,
                card.PictureTop,       &PlaceLargePicture,  set.LargeCards.Current};
    }
    case PlacedPicture::Character: {
        Character& character = set.Characters[set.Characters.Current];
        return {t.Character.picFrameCharacter, t.Character.picImageCharacter, character.PictureLeft,
                character.PictureTop,          &PlaceCharacterPicture,        set.Characters.Current};
    }
    case PlacedPicture::PlayingPiece:
        break;
    }
    Character& character = set.Characters[set.Characters.Current];
    return {t.PlayingPiece.picPlayingPieceFrame, t.PlayingPiece.picPlayingPieceImage,
            character.PlayingPieceLeft,          character.PlayingPieceTop,
            &PlacePlayingPiecePicture,           set.Characters.Current};
}

/// The range of a handle in pixels of the card.
struct HandleRange {
    int Min;
    int Max;
};

constexpr HandleRange StandardHandle = {60, 208};
constexpr HandleRange LargeHandle = {30, 180};
constexpr HandleRange CharacterHandle = {15, 154};

int Clamped(int position, int pixels, HandleRange range)
{
    return std::clamp(position + pixels, range.Min, range.Max);
}

void MoveStandardHandle(Workshop& workshop, int top)
{
    CardTemplate& t = workshop.Templates.Standard;
    PlaceHandle(t, top);
    workshop.Set.Cards[workshop.Set.Cards.Current].FrameHeight = static_cast<int16>(t.picFrame.Height);
}

} // namespace

void MovePicture(Workshop& workshop, PlacedPicture which, double right, double down)
{
    const PictureRow row = RowOf(workshop, which);
    row.Left += right;
    row.Top += down;
    row.Apply(workshop);
}

void MovePictureByKey(Workshop& workshop, PlacedPicture which, Qt::Key key)
{
    const PictureRow row = RowOf(workshop, which);
    switch (key) {
    case Qt::Key_PageUp:
        row.Top = 0;
        break;
    case Qt::Key_PageDown:
        row.Top = (row.Frame.Height - 3 - row.Measured.Height) * TwipsPerPixelY;
        break;
    case Qt::Key_End:
        row.Left = (row.Frame.Width - 1 - row.Measured.Width) * TwipsPerPixelX;
        break;
    case Qt::Key_Home:
        row.Left = 0;
        break;
    case Qt::Key_Left:
        row.Left -= TwipsPerPixelX;
        break;
    case Qt::Key_Up:
        row.Top -= TwipsPerPixelY;
        break;
    case Qt::Key_Right:
        row.Left += TwipsPerPixelX;
        break;
    case Qt::Key_Down:
        row.Top += TwipsPerPixelY;
        break;
    default:
        break;
    }
    row.Apply(workshop);
}

void MoveHandle(Workshop& workshop, PlacedPicture which, int pixels)
{
    CardTemplates& t = workshop.Templates;
    CardSet& set = workshop.Set;
    switch (which) {
    case PlacedPicture::Standard:
        MoveStandardHandle(workshop, Clamped(t.Standard.lblPicSize.Top, pixels, StandardHandle));
        break;
    case PlacedPicture::Large:
        PlaceHandle(t.Large, Clamped(t.Large.lblPicSizeLarge.Left, pixels, LargeHandle));
        set.LargeCards[set.LargeCards.Current].FrameHeight = static_cast<int16>(t.Large.picFrameLarge.Width);
        break;
    case PlacedPicture::Character:
        PlaceHandle(t.Character, Clamped(t.Character.lblPicSizeCharacter.Left, pixels, CharacterHandle));
        set.Characters[set.Characters.Current].FrameHeight =
            static_cast<int16>(t.Character.picFrameCharacter.Width);
        break;
    case PlacedPicture::PlayingPiece:
        break;
    }
}

void MoveHandleByKey(Workshop& workshop, Qt::Key key)
{
    int top = workshop.Templates.Standard.lblPicSize.Top;
    if (key == Qt::Key_Up && top > StandardHandle.Min)
        --top;
    else if (key == Qt::Key_Down && top < StandardHandle.Max)
        ++top;
    else if (key == Qt::Key_End)
        top = StandardHandle.Max;
    else if (key == Qt::Key_Home)
        top = StandardHandle.Min;
    MoveStandardHandle(workshop, top);
}

void CentrePicture(Workshop& workshop)
{
    constexpr int margins = 10;
    const CardTemplate& t = workshop.Templates.Standard;
    const double room = t.picCard.Width - margins - t.picImage.Width;
    workshop.Set.Cards[workshop.Set.Cards.Current].PictureLeft = room / 2 * TwipsPerPixelX;
}

} // namespace deckforge
