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
};

/// Calls the function with the picture of the current card, and places it.
template <class Change>
void ChangePlace(CardTemplates& t, CardSet& set, PlacedPicture which, Change&& change)
{
    if (which == PlacedPicture::Standard) {
        Card& card = set.Cards.CurrentRecord();
        change(PictureRow{t.Standard.picFrame, t.Standard.picImage, card.PictureLeft, card.PictureTop});
        PlaceCardPicture(t.Standard, card);
    } else if (which == PlacedPicture::Large) {
        LargeCard& card = set.LargeCards.CurrentRecord();
        // Kept: End and Page Down use the size of the standard card's picture.
        change(PictureRow{t.Large.picFrameLarge, t.Standard.picImage, card.PictureLeft, card.PictureTop});
        PlaceLargePicture(t.Large, card);
    } else if (which == PlacedPicture::Character) {
        Character& character = set.Characters.CurrentRecord();
        change(PictureRow{t.Character.picFrameCharacter, t.Character.picImageCharacter, character.PictureLeft,
                          character.PictureTop});
        PlaceCharacterPicture(t.Character, character);
    } else {
        Character& character = set.Characters.CurrentRecord();
        change(PictureRow{t.PlayingPiece.picPlayingPieceFrame, t.PlayingPiece.picPlayingPieceImage,
                          character.PlayingPieceLeft, character.PlayingPieceTop});
        PlacePlayingPiecePicture(t.PlayingPiece, character);
    }
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

void MoveStandardHandle(CardTemplate& t, Card& card, int top)
{
    PlaceHandle(t, top);
    card.FrameHeight = static_cast<int16>(t.picFrame.Height);
}

void MoveByKey(const PictureRow& row, Qt::Key key)
{
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
}

} // namespace

void MovePicture(CardTemplates& t, CardSet& set, PlacedPicture which, double right, double down)
{
    ChangePlace(t, set, which, [&](const PictureRow& row) {
        row.Left += right;
        row.Top += down;
    });
}

void MovePictureByKey(CardTemplates& t, CardSet& set, PlacedPicture which, Qt::Key key)
{
    ChangePlace(t, set, which, [&](const PictureRow& row) { MoveByKey(row, key); });
}

void MoveHandle(CardTemplates& t, CardSet& set, PlacedPicture which, int pixels)
{
    if (which == PlacedPicture::Standard) {
        MoveStandardHandle(t.Standard, set.Cards.CurrentRecord(),
                           Clamped(t.Standard.lblPicSize.Top, pixels, StandardHandle));
    } else if (which == PlacedPicture::Large) {
        PlaceHandle(t.Large, Clamped(t.Large.lblPicSizeLarge.Left, pixels, LargeHandle));
        set.LargeCards.CurrentRecord().FrameHeight = static_cast<int16>(t.Large.picFrameLarge.Width);
    } else if (which == PlacedPicture::Character) {
        PlaceHandle(t.Character, Clamped(t.Character.lblPicSizeCharacter.Left, pixels, CharacterHandle));
        set.Characters.CurrentRecord().FrameHeight = static_cast<int16>(t.Character.picFrameCharacter.Width);
    }
}

void MoveHandleByKey(CardTemplate& t, Card& card, Qt::Key key)
{
    int top = t.lblPicSize.Top;
    if (key == Qt::Key_Up && top > StandardHandle.Min)
        --top;
    else if (key == Qt::Key_Down && top < StandardHandle.Max)
        ++top;
    else if (key == Qt::Key_End)
        top = StandardHandle.Max;
    else if (key == Qt::Key_Home)
        top = StandardHandle.Min;
    MoveStandardHandle(t, card, top);
}

void CentrePicture(const CardTemplate& t, Card& card)
{
    constexpr int margins = 10;
    const double room = t.picCard.Width - margins - t.picImage.Width;
    card.PictureLeft = room / 2 * TwipsPerPixelX;
}

} // namespace deckforge
