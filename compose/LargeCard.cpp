// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/LargeCard.h"

#include "compose/CardPainting.h"
#include "compose/FontScheme.h"
#include "compose/IgnoreFailure.h"
#include "platform/Twips.h"

namespace deckforge {

namespace {

constexpr int FrameTop = 8;
constexpr int FrameHeight = 238;
constexpr int HandleLeftWithoutPicture = 5;
constexpr int TextRight = 296;

constexpr int DefaultBack = 3;

// Preview

void PlaceFrame(ShowRun& run, LargeCardTemplate& t, const LargeCard& card)
{
    t.picFrameLarge.Visible = card.ShowPicture;
    t.lblPicSizeLarge.Visible = card.ShowPicture;
    t.picFrameLarge.Outlined = card.Frame;
    run([&] { t.picFrameLarge.SetWidth(card.FrameHeight); });
}

int HandleLeftAtFrame(const LargeCardTemplate& t)
{
    return t.picFrameLarge.Left + t.picFrameLarge.Width;
}

/// Places title and information at the right of the handle. A box without room keeps its width.
void PlaceTexts(LargeCardTemplate& t)
{
    for (Box* label : {&t.lblTitleLarge, &t.lblInformationLarge}) {
        label->Left = t.lblPicSizeLarge.Left + t.lblPicSizeLarge.Width;
        IgnoreFailure([&] { label->SetWidth(TextRight - label->Left); });
    }
}

/// With Resize the frame is as high as the picture and moves up and down in its place.
void PlacePictureInFrame(LargeCardTemplate& t, const LargeCard& card)
{
    if (card.Resize) {
        t.picFrameLarge.Top = PixelsFromTwipsY(card.PictureTop + FrameTop * TwipsPerPixelY);
        t.picFrameLarge.SetHeight(t.picImageLarge.Height);
        t.picImageLarge.MoveToTwips(card.PictureLeft, 0);
    } else {
        t.picFrameLarge.Top = FrameTop;
        t.picFrameLarge.SetHeight(FrameHeight);
        t.picImageLarge.MoveToTwips(card.PictureLeft, card.PictureTop);
    }
}

void LoadPictures(ShowRun& run, Workshop& workshop, const LargeCard& card)
{
    CardTemplate& standard = workshop.Templates.Standard;
    LargeCardTemplate& t = workshop.Templates.Large;
    run.ReportMissingOn(standard.picImage, card.Picture);
    LoadFramedPicture(run, workshop, t.picImageLarge, card.Picture);
    PlacePictureInFrame(t, card);

    run.ReportMissingOn(standard.picCard, card.Background);
    run([&] { t.picCardLarge.Surface->SetPicture(workshop.Pictures.LoadPicture(card.Background)); });
    t.picCardLarge.Surface->SetBackColor(card.Color);

    run.ReportMissingOn(standard.picBack, card.CardBack);
    run([&] {
        t.picBackLarge.Surface->SetPicture(card.CardBack.isEmpty()
                                               ? workshop.Art.imgChB(DefaultBack)
                                               : workshop.Pictures.LoadPicture(card.CardBack));
    });
}

// Composition

void PrintTexts(Workshop& workshop, const LargeCard& card, int16 index)
{
    const LargeCardTemplate& t = workshop.Templates.Large;
    const SetHeader& header = workshop.Set.Header;
    PictureBox& picACard = workshop.Surfaces.picACard;
    UseFont(picACard, header.FontTitleLarge);
    PrintWrapped(picACard, t.lblTitleLarge, card.Title, LineForm::Centred);
    UseFont(picACard, header.FontInformationLarge);
    // Kept: always at the top of its box, even if a long title overlaps it.
    PrintWrapped(picACard, t.lblInformationLarge, card.Info);
    if (header.Autonumber) {
        UseFont(picACard, header.FontAutonumber);
        // Kept: at the height of the standard card's number, a pixel above the large card's own box.
        PrintIndex(picACard, t.lblAutonumberLarge.Left, workshop.Templates.Standard.lblAutonumber.Top, index);
    }
    PrintWatermark(picACard, t.lblWatermark);
}

/// Composes the card at the positions of the boxes. Steps that fail are skipped.
void DrawLargeCard(Workshop& workshop, int16 index, FontSpec& pen)
{
    const LargeCardTemplate& t = workshop.Templates.Large;
    const LargeCard& card = workshop.Set.LargeCards[index];
    PaintBackground(workshop, t.picCardLarge, card.Background, card.Color, pen);
    FramedPicture picture = FramedPictureOf(card, t.picFrameLarge, t.picImageLarge);
    picture.Clip.FrameHugsHeight = card.Resize;
    PaintPictureBlock(workshop.Surfaces.picACard, workshop.Surfaces.picWhite, picture);
    PaintSymbol(workshop, t.picSymbolLarge, {0, 0});
    PrintTexts(workshop, card, index);
    pen = workshop.Surfaces.picACard.Pen();
}

} // namespace

CompositionFailure ShowLargeCard(Workshop& workshop, int16 index)
{
    return RunShow(workshop, [&](ShowRun& run) {
        LargeCardTemplate& t = workshop.Templates.Large;
        const LargeCard& card = workshop.Set.LargeCards[index];
        t.lblTitleLarge.Caption = card.Title;
        t.lblInformationLarge.Caption = card.Info;
        PlaceFrame(run, t, card);
        t.lblPicSizeLarge.Left = card.ShowPicture ? HandleLeftAtFrame(t) : HandleLeftWithoutPicture;
        PlaceTexts(t);
        t.lblAutonumberLarge.Caption = QString::number(index);
        LoadPictures(run, workshop, card);
        DrawLargeCard(workshop, index, workshop.Carried.Card);
    });
}

void PlaceLargePicture(Workshop& workshop, int16 index)
{
    LargeCardTemplate& t = workshop.Templates.Large;
    const LargeCard& card = workshop.Set.LargeCards[index];
    ShowRun run;
    PlaceFrame(run, t, card);
    t.lblPicSizeLarge.Left = HandleLeftAtFrame(t);
    t.picImageLarge.Surface->Refresh();
    PlacePictureInFrame(t, card);
}

void PlaceHandle(LargeCardTemplate& t, int left)
{
    t.lblPicSizeLarge.Left = left;
    t.picFrameLarge.SetWidth(left - t.picFrameLarge.Left);
    PlaceTexts(t);
}

void ShowPictureFrame(LargeCardTemplate& t, bool visible)
{
    t.picFrameLarge.Visible = visible;
    t.lblPicSizeLarge.Visible = visible;
    t.lblPicSizeLarge.Left = visible ? HandleLeftAtFrame(t) : 0;
    PlaceTexts(t);
}

} // namespace deckforge
