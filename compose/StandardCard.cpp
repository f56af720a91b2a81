// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/StandardCard.h"

#include "compose/CardPainting.h"
#include "compose/FontScheme.h"
#include "compose/IgnoreFailure.h"
#include "compose/TextFitting.h"
#include "imaging/modRotatePic.h"
#include "platform/Twips.h"

namespace deckforge {

namespace {

constexpr int FrameLeft = 5;
constexpr int FrameWidth = 139;
constexpr int InformationBottom = 241;
constexpr int HandleHeight = 3;

void ShowTypeLines(CardTemplate& t, const Card& card)
{
    constexpr int oneLineWidth = 139;
    constexpr int halfLineWidth = 57;
    constexpr int numberTopBelowOneLine = 16;
    constexpr int numberTop = 8;
    t.lblType[0].SetWidth(card.OneLine ? oneLineWidth : halfLineWidth);
    t.lblType[0].Align = card.OneLine ? Alignment::Centre : Alignment::Left;
    for (std::size_t i = 1; i < t.lblType.size(); ++i)
        t.lblType[i].Visible = !card.OneLine;
    t.lblNumber.Top = card.OneLine ? numberTopBelowOneLine : numberTop;
    ShowTypeNames(t, card);
    if (card.OneLine)
        t.lblType[0].Caption += card.SubType;
}

/// Without room for the text its box keeps its height.
void PlaceInformation(CardTemplate& t)
{
    t.lblInformation.Top = t.lblBold.Top + t.lblBold.Height;
    IgnoreFailure([&] { t.lblInformation.SetHeight(InformationBottom - t.lblInformation.Top); });
}

void ShowTexts(CardTemplate& t, const Card& card, int16 index)
{
    t.lblTitle.Caption = card.Title;
    ShowTypeLines(t, card);
    t.lblNumber.Caption = card.Number;
    t.lblBold.Caption = card.BoldText;
    PlaceBoldText(t);
    t.lblInformation.Caption = card.Info;
    t.lblAutonumber.Caption = QString::number(index);
}

void PlaceTextsBelowHandle(CardTemplate& t)
{
    t.lblBold.Top = t.lblPicSize.Top + HandleHeight;
    PlaceInformation(t);
}

void PlaceFrame(CardTemplate& t, const Card& card)
{
    t.picFrame.Visible = card.ShowPicture;
    t.lblPicSize.Visible = card.ShowPicture;
    t.picFrame.Outlined = card.Frame;
    IgnoreFailure([&] { t.picFrame.SetHeight(card.FrameHeight); });
    t.lblPicSize.Top = t.picFrame.Top + t.picFrame.Height;
    PlaceTextsBelowHandle(t);
}

/// With Resize the frame is as wide as the picture and moves sideways in its place.
void PlacePictureInFrame(CardTemplate& t, const Card& card)
{
    if (card.Resize) {
        t.picFrame.Left = PixelsFromTwipsX(card.PictureLeft + FrameLeft * TwipsPerPixelX);
        t.picFrame.SetWidth(t.picImage.Width);
        t.picImage.MoveToTwips(0, card.PictureTop);
    } else {
        t.picFrame.Left = FrameLeft;
        t.picFrame.SetWidth(FrameWidth);
        t.picImage.MoveToTwips(card.PictureLeft, card.PictureTop);
    }
}

/// Copies the card's background to the strip of the credit, so that it has no white bar.
void ReadArtistBackground(const CardTemplate& t, PictureBox& picArtist, const Card& card)
{
    picArtist.SetPicture({});
    if (card.Background.isEmpty()) {
        picArtist.SetBackColor(card.Color);
        picArtist.Freeze();
        return;
    }
    PictureBox strip(picArtist.Size().transposed(), picArtist.Scale());
    strip.PaintPicture(t.picCard.Surface->Image(), 0, -t.picArtistDest.Top);
    RotatePicture(strip, picArtist, Turn::CounterClockwise);
}

class StandardComposer final : Composer {
public:
    StandardComposer(Workshop& workshop, int16 index)
        : Composer(workshop, index), m_set(workshop.Set), m_card(workshop.Set.Cards[index]),
          m_boxes(m_standard)
    {
    }

    void Compose()
    {
        ShowTexts(m_boxes, m_card, m_index);
        PlaceFrame(m_boxes, m_card);
        ReportMissingOn(m_boxes.picImage, m_card.Picture);
        LoadFramedPicture(m_boxes.picImage, m_card.Picture);
        PlacePictureInFrame(m_boxes, m_card);
        LoadBackground(m_boxes.picCard, m_card.Background, m_card.Color);
        LoadBack();
        DrawArtistCredit(m_boxes, m_surfaces.picArtist, m_card, m_header.ArtistColor);
        Draw();
    }

private:
    void LoadBack()
    {
        ReplaceUnknownBack(m_set, m_card);
        ReportMissingOn(m_boxes.picBack, m_set.CardBacks[m_card.CardBack].Picture);
        Load([&] {
            m_boxes.picBack.Surface->SetPicture(PictureOfBack(m_set, m_card.CardBack, m_art, m_pictures));
        });
    }

    void Draw()
    {
        PaintBackground(m_boxes.picCard, m_card.Background, m_card.Color);
        PaintPictures();
        PrintTitle();
        PrintType();
        PrintTexts(m_picACard, m_boxes, m_header);
        PrintIndex(m_boxes.lblAutonumber, m_boxes.lblAutonumber.Top);
        FinishCard(m_boxes.lblWatermark);
        m_picACard.Freeze();
    }

    void PaintPictures()
    {
        if (m_card.ShowPicture) {
            ClipInput clip =
                ClipInFrame(m_boxes.picFrame, m_boxes.picImage, m_card.PictureLeft, m_card.PictureTop);
            clip.FrameHugsWidth = m_card.Resize;
            PaintFramed(m_picACard, m_boxes.picFrame, m_boxes.picImage, clip);
        }
        PaintSymbol(m_boxes.picSymbol);
        const Box& artist = m_boxes.picArtistDest;
        if (!m_card.Artist.isEmpty())
            m_picACard.PaintPicture(artist.Surface->Image(), artist.Left, artist.Top);
    }

    /// Kept: the title is centred by its width in the font of the preview's surface, not in its own font.
    void PrintTitle()
    {
        UseFont(m_picACard, m_header.FontTitle);
        const double width = m_boxes.picCard.Surface->TextWidth(m_card.Title);
        PrintAt(m_picACard, Aligned(m_boxes.lblTitle, width), m_boxes.lblTitle.Top, m_card.Title);
    }

    void PrintType()
    {
        const auto& lblType = m_boxes.lblType;
        UseFont(m_picACard, m_header.FontType);
        if (m_card.OneLine) {
            // Kept: prints only the first part, at the position where the reversed text would be centred.
            const double width = m_picACard.TextWidth(m_card.TypeReversed);
            PrintAt(m_picACard, Aligned(lblType[0], width), lblType[0].Top, m_card.Type);
            return;
        }
        for (const std::size_t label : {0, 2, 1, 3})
            PrintLine(m_picACard, lblType[label]);
    }

    const CardSet& m_set;
    Card& m_card;
    CardTemplate& m_boxes;
};

} // namespace

CompositionFailure ShowCard(Workshop& workshop, int16 index)
{
    return Compose<StandardComposer>(workshop, index);
}

void PlaceCardPicture(CardTemplate& t, const Card& card)
{
    PlaceFrame(t, card);
    t.picImage.Surface->Refresh();
    PlacePictureInFrame(t, card);
}

void ReplaceUnknownBack(const CardSet& set, Card& card)
{
    if (card.CardBack < 0 || card.CardBack > set.CardBacks.Count())
        card.CardBack = 1;
}

Picture PictureOfBack(const CardSet& set, int16 row, BuiltInArt& art, PictureLoader& pictures)
{
    const CardBack& back = set.CardBacks[row];
    return back.BuiltIn ? art.imgCB(row - 1) : pictures.LoadPicture(back.Picture);
}

void ShowTypeNames(CardTemplate& t, const Card& card)
{
    t.lblType[0].Caption = card.Type;
    t.lblType[1].Caption = card.TypeReversed;
    t.lblType[2].Caption = card.SubType;
    t.lblType[3].Caption = card.SubTypeReversed;
}

void PlaceBoldText(CardTemplate& t)
{
    constexpr int emptyHeight = 1;
    constexpr int lineHeight = 12;
    t.lblBold.SetHeight(t.lblBold.Caption.isEmpty() ? emptyHeight : lineHeight);
    PlaceInformation(t);
}

void PlaceHandle(CardTemplate& t, int top)
{
    t.lblPicSize.Top = top;
    t.picFrame.SetHeight(top - t.picFrame.Top);
    PlaceTextsBelowHandle(t);
}

void ShowPictureFrame(CardTemplate& t, bool visible)
{
    t.picFrame.Visible = visible;
    t.lblPicSize.Visible = visible;
    const Box& above = visible ? t.picFrame : t.lblTitle;
    t.lblBold.Top = above.Top + above.Height + HandleHeight;
    PlaceInformation(t);
    if (InformationBottom - t.lblInformation.Top < 1)
        t.lblInformation.Top = InformationBottom + 1;
}

void DrawArtistCredit(CardTemplate& t, PictureBox& picArtist, const Card& card, Colour colour)
{
    constexpr int cutAbove = -2; // crops the text, with the strip's height of five pixels
    t.picArtistDest.Visible = !card.Artist.isEmpty();
    if (!t.picArtistDest.Visible)
        return;
    ReadArtistBackground(t, picArtist, card);
    picArtist.ForeColor = colour;
    PrintAt(picArtist, 0, cutAbove, card.Artist);
    picArtist.Freeze();
    RotatePicture(picArtist, *t.picArtistDest.Surface, Turn::Clockwise);
}

QString FrameSizeText(const Box& frame)
{
    return QStringLiteral("%1W * %2H").arg(frame.Width).arg(frame.Height);
}

} // namespace deckforge
