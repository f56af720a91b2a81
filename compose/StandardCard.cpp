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

// Preview

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

void PlaceFrame(ShowRun& run, CardTemplate& t, const Card& card)
{
    t.picFrame.Visible = card.ShowPicture;
    t.lblPicSize.Visible = card.ShowPicture;
    t.picFrame.Outlined = card.Frame;
    run([&] { t.picFrame.SetHeight(card.FrameHeight); });
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

void LoadBackground(ShowRun& run, Workshop& workshop, const Card& card)
{
    Box& picCard = workshop.Templates.Standard.picCard;
    run.ReportMissingOn(picCard, card.Background);
    run([&] { picCard.Surface->SetPicture(workshop.Pictures.LoadPicture(card.Background)); });
    picCard.Surface->SetBackColor(card.Color); // also removes an earlier message
}

void LoadBack(ShowRun& run, Workshop& workshop, Card& card)
{
    CardSet& set = workshop.Set;
    ReplaceUnknownBack(set, card);
    const CardBack& back = set.CardBacks[card.CardBack];
    Box& picBack = workshop.Templates.Standard.picBack;
    run.ReportMissingOn(picBack, back.Picture);
    run([&] { picBack.Surface->SetPicture(PictureOfBack(workshop, card.CardBack)); });
}

/// Copies the card's background to the strip of the credit, so that it has no white bar.
void ReadArtistBackground(Workshop& workshop, int16 index)
{
    const CardTemplate& t = workshop.Templates.Standard;
    PictureBox& picArtist = workshop.Surfaces.picArtist;
    const Card& card = workshop.Set.Cards[index];
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

// Composition

void PaintPictures(Workshop& workshop, const Card& card)
{
    const CardTemplate& t = workshop.Templates.Standard;
    PictureBox& picACard = workshop.Surfaces.picACard;
    FramedPicture picture = FramedPictureOf(card, t.picFrame, t.picImage);
    picture.Clip.FrameHugsWidth = card.Resize;
    PaintPictureBlock(picACard, workshop.Surfaces.picWhite, picture);
    PaintSymbol(workshop, t.picSymbol, {0, 0});
    if (!card.Artist.isEmpty())
        picACard.PaintPicture(t.picArtistDest.Surface->Image(), t.picArtistDest.Left, t.picArtistDest.Top);
}

/// Kept: the title is centred by its width in the font of the preview's surface, not in its own font.
void PrintTitle(Workshop& workshop, const Card& card)
{
    const CardTemplate& t = workshop.Templates.Standard;
    PictureBox& picACard = workshop.Surfaces.picACard;
    UseFont(picACard, workshop.Set.Header.FontTitle);
    const double width = t.picCard.Surface->TextWidth(card.Title);
    PrintAt(picACard, Centred(t.lblTitle, width), t.lblTitle.Top, card.Title);
}

void PrintType(Workshop& workshop, const Card& card)
{
    const auto& lblType = workshop.Templates.Standard.lblType;
    PictureBox& picACard = workshop.Surfaces.picACard;
    UseFont(picACard, workshop.Set.Header.FontType);
    if (card.OneLine) {
        // Kept: prints only the first part, at the position where the reversed text would be centred.
        const double width = picACard.TextWidth(card.TypeReversed);
        PrintAt(picACard, Centred(lblType[0], width), lblType[0].Top, card.Type);
        return;
    }
    const auto printRight = [&](const Box& box, const QString& text) {
        PrintAt(picACard, RightAligned(box, picACard.TextWidth(text)), box.Top, text);
    };
    PrintAt(picACard, lblType[0].Left, lblType[0].Top, card.Type);
    PrintAt(picACard, lblType[2].Left, lblType[2].Top, card.SubType);
    printRight(lblType[1], card.TypeReversed);
    printRight(lblType[3], card.SubTypeReversed);
}

void PrintTexts(Workshop& workshop, const Card& card, int16 index)
{
    const CardTemplate& t = workshop.Templates.Standard;
    const SetHeader& header = workshop.Set.Header;
    PictureBox& picACard = workshop.Surfaces.picACard;
    PrintTitle(workshop, card);
    PrintType(workshop, card);
    UseFont(picACard, header.FontNumber);
    PrintCentred(picACard, t.lblNumber, card.Number);
    UseFont(picACard, header.FontBold);
    PrintCentred(picACard, t.lblBold, card.BoldText);
    UseFont(picACard, header.FontInformation);
    PrintWrapped(picACard, t.lblInformation, card.Info);
    if (header.Autonumber) {
        UseFont(picACard, header.FontAutonumber);
        const double width = picACard.TextWidth(QString::number(index));
        PrintIndex(picACard, RightAligned(t.lblAutonumber, width), t.lblAutonumber.Top, index);
    }
    PrintWatermark(picACard, t.lblWatermark);
}

/// Composes the card at the positions of the boxes. Steps that fail are skipped.
void DrawCard(Workshop& workshop, int16 index, FontSpec& pen)
{
    const Card& card = workshop.Set.Cards[index];
    PaintBackground(workshop, workshop.Templates.Standard.picCard, card.Background, card.Color, pen);
    PaintPictures(workshop, card);
    PrintTexts(workshop, card, index);
    workshop.Surfaces.picACard.Freeze();
    pen = workshop.Surfaces.picACard.Pen();
}

} // namespace

CompositionFailure ShowCard(Workshop& workshop, int16 index)
{
    return RunShow(workshop, [&](ShowRun& run) {
        CardTemplate& t = workshop.Templates.Standard;
        Card& card = workshop.Set.Cards[index];
        ShowTexts(t, card, index);
        PlaceFrame(run, t, card);
        run.ReportMissingOn(t.picImage, card.Picture);
        LoadFramedPicture(run, workshop, t.picImage, card.Picture);
        PlacePictureInFrame(t, card);
        LoadBackground(run, workshop, card);
        LoadBack(run, workshop, card);
        DrawArtistCredit(workshop, index);
        DrawCard(workshop, index, workshop.Carried.Card);
    });
}

void PlaceCardPicture(Workshop& workshop, int16 index)
{
    CardTemplate& t = workshop.Templates.Standard;
    const Card& card = workshop.Set.Cards[index];
    ShowRun run;
    PlaceFrame(run, t, card);
    t.picImage.Surface->Refresh();
    PlacePictureInFrame(t, card);
}

void ReplaceUnknownBack(const CardSet& set, Card& card)
{
    if (card.CardBack < 0 || card.CardBack > set.CardBacks.Count())
        card.CardBack = 1;
}

Picture PictureOfBack(Workshop& workshop, int16 row)
{
    const CardBack& back = workshop.Set.CardBacks[row];
    return back.BuiltIn ? workshop.Art.imgCB(row - 1) : workshop.Pictures.LoadPicture(back.Picture);
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

void DrawArtistCredit(Workshop& workshop, int16 index)
{
    constexpr int cutAbove = -2; // crops the text, with the strip's height of five pixels
    const QString& artist = workshop.Set.Cards[index].Artist;
    PictureBox& picArtist = workshop.Surfaces.picArtist;
    Box& picArtistDest = workshop.Templates.Standard.picArtistDest;
    picArtistDest.Visible = !artist.isEmpty();
    if (!picArtistDest.Visible)
        return;
    ReadArtistBackground(workshop, index);
    picArtist.ForeColor = workshop.Set.Header.ArtistColor;
    PrintAt(picArtist, 0, cutAbove, artist);
    picArtist.Freeze();
    RotatePicture(picArtist, *picArtistDest.Surface, Turn::Clockwise);
}

QString FrameSizeText(const Box& frame)
{
    return QStringLiteral("%1W * %2H").arg(frame.Width).arg(frame.Height);
}

} // namespace deckforge
