// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/LargeCard.h"

#include "compose/CardPainting.h"
#include "compose/IgnoreFailure.h"
#include "platform/Twips.h"

namespace deckforge {

namespace {

constexpr int FrameTop = 8;
constexpr int FrameHeight = 238;
constexpr int HandleLeftWithoutPicture = 5;
constexpr int TextRight = 296;

constexpr int DefaultBack = 3;

void PlaceFrame(LargeCardTemplate& t, const LargeCard& card)
{
    t.picFrameLarge.Visible = card.ShowPicture;
    t.lblPicSizeLarge.Visible = card.ShowPicture;
    t.picFrameLarge.Outlined = card.Frame;
    IgnoreFailure([&] { t.picFrameLarge.SetWidth(card.FrameHeight); });
}

int HandleLeftAtFrame(const LargeCardTemplate& t)
{
    return t.picFrameLarge.Left + t.picFrameLarge.Width;
}

/// Places the texts at the right of the handle. A box without room keeps its width.
void PlaceTexts(LargeCardTemplate& t)
{
    for (Box* label : t.Boxes) {
        if (label->Form == TextForm::None)
            continue;
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

class LargeComposer final : Composer {
public:
    LargeComposer(Workshop& workshop, int16 index)
        : Composer(workshop, index), m_card(workshop.Set.LargeCards[index]), m_boxes(workshop.Templates.Large)
    {
    }

    void Compose()
    {
        m_boxes.lblTitleLarge.Caption = m_card.Title;
        m_boxes.lblInformationLarge.Caption = m_card.Info;
        PlaceFrame(m_boxes, m_card);
        m_boxes.lblPicSizeLarge.Left =
            m_card.ShowPicture ? HandleLeftAtFrame(m_boxes) : HandleLeftWithoutPicture;
        PlaceTexts(m_boxes);
        m_boxes.lblAutonumberLarge.Caption = QString::number(m_index);
        LoadPictures();
        Draw();
    }

private:
    void LoadPictures()
    {
        ReportMissingOn(m_standard.picImage, m_card.Picture);
        LoadFramedPicture(m_boxes.picImageLarge, m_card.Picture);
        PlacePictureInFrame(m_boxes, m_card);
        LoadBackground(m_boxes.picCardLarge, m_card.Background, m_card.Color);
        ReportMissingOn(m_standard.picBack, m_card.CardBack);
        Load([&] {
            m_boxes.picBackLarge.Surface->SetPicture(m_card.CardBack.isEmpty()
                                                         ? m_art.imgChB(DefaultBack)
                                                         : m_pictures.LoadPicture(m_card.CardBack));
        });
    }

    void Draw()
    {
        PaintBackground(m_boxes.picCardLarge, m_card.Background, m_card.Color);
        if (m_card.ShowPicture) {
            ClipInput clip = ClipInFrame(m_boxes.picFrameLarge, m_boxes.picImageLarge, m_card.PictureLeft,
                                         m_card.PictureTop);
            clip.FrameHugsHeight = m_card.Resize;
            PaintFramed(m_picACard, m_boxes.picFrameLarge, m_boxes.picImageLarge, clip);
        }
        PaintSymbol(m_boxes.picSymbolLarge);
        PrintTexts(m_picACard, m_boxes, m_header);
        // Kept: at the height of the standard card's number, a pixel above the large card's own box.
        PrintIndex(m_boxes.lblAutonumberLarge, m_standard.lblAutonumber.Top);
        FinishCard(m_boxes.lblWatermark);
    }

    const LargeCard& m_card;
    LargeCardTemplate& m_boxes;
};

} // namespace

CompositionFailure ShowLargeCard(Workshop& workshop, int16 index)
{
    return Compose<LargeComposer>(workshop, index);
}

void PlaceLargePicture(LargeCardTemplate& t, const LargeCard& card)
{
    PlaceFrame(t, card);
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
