// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/NewBack.h"

#include "compose/CardPainting.h"
#include "compose/FontScheme.h"
#include "imaging/Resampling.h"
#include "imaging/modRotatePic.h"
#include "platform/Numbers.h"

#include <QRandomGenerator>
#include <cmath>

namespace deckforge {

namespace {

constexpr QPoint InnerSeed = {50, 50};
constexpr QPoint OuterSeed = {1, 1};
/// A point in each part of the ornament.
constexpr std::array<QPoint, 18> FrameSeeds = {{{17, 15},
                                                {54, 13},
                                                {88, 13},
                                                {124, 13},
                                                {160, 13},
                                                {191, 13},
                                                {232, 13},
                                                {15, 56},
                                                {237, 54},
                                                {15, 92},
                                                {237, 91},
                                                {16, 133},
                                                {54, 133},
                                                {92, 133},
                                                {123, 133},
                                                {164, 133},
                                                {194, 133},
                                                {226, 133}}};

void Fill(PictureBox& surface, QPoint seed, Colour newColour, Colour oldColour)
{
    surface.FillColor = newColour;
    surface.ExtFloodFill(seed.x(), seed.y(), oldColour);
}

void FillFrame(PictureBox& picNewBack, Colour newColour, Colour oldColour)
{
    for (const QPoint seed : FrameSeeds)
        Fill(picNewBack, seed, newColour, oldColour);
}

Colour RandomColour()
{
    const auto channel = [] { return static_cast<Colour>(QRandomGenerator::global()->bounded(255)); };
    const Colour red = channel();
    const Colour green = channel();
    return channel() << 16 | green << 8 | red;
}

/// Colours that tell the regions apart while they are filled: margin and ornament are both white in the
/// template, and the user may choose equal colours.
struct TemporaryColours {
    Colour Inner = RandomColour();
    Colour Outer = RandomColour();
    Colour Frame = RandomColour();

    [[nodiscard]] bool AreUsable() const
    {
        return Inner != Black && Outer != White && Frame != White && Inner != Outer && Inner != Frame;
    }
};

/// Fills in two passes: each fill of the second pass replaces exactly one temporary colour.
void ColourTemplate(PictureBox& picNewBack, const NewCardBack& back)
{
    TemporaryColours temporary;
    while (!temporary.AreUsable())
        temporary = {};
    Fill(picNewBack, OuterSeed, temporary.Outer, White);
    Fill(picNewBack, InnerSeed, temporary.Inner, Black);
    FillFrame(picNewBack, temporary.Frame, White);
    Fill(picNewBack, OuterSeed, back.BackColor, temporary.Outer);
    Fill(picNewBack, InnerSeed, back.InnerColor, temporary.Inner);
    FillFrame(picNewBack, back.FrameColor, temporary.Frame);
}

/// Filling needs edges without grey. Above scale 1 the template is filled at a finer scale and reduced, so
/// that the edges of the colours are smooth.
Picture ColouredTemplate(BuiltInArt& art, const NewCardBack& back, QSize size, int scale)
{
    constexpr int finest = 16;
    const int fineness = scale == 1 ? 1 : std::clamp(finest / scale, 1, 4);
    PictureBox surface(size, scale * fineness);
    surface.SetPicture(art.picBackTemplate(fineness));
    ColourTemplate(surface, back);
    const QImage filled = surface.Image().Pixels();
    return Picture(fineness == 1 ? filled : Resampled(filled, filled.rect(), size * scale), scale);
}

void SizeBackTitle(Box& lblBackTitle, const PictureBox& measure)
{
    double width = 0;
    for (const QString& line : lblBackTitle.Caption.split(QStringLiteral("\r\n")))
        width = std::max(width, measure.TextWidth(line));
    lblBackTitle.SetWidth(static_cast<int>(std::ceil(width)));
    lblBackTitle.SetHeight(static_cast<int>(measure.TextHeight(lblBackTitle.Caption)));
}

void CenterBackTitle(Box& lblBackTitle)
{
    lblBackTitle.Left = ToInt16(NewBackTemplate::TitleCentre.x() - lblBackTitle.Width / 2.0);
    lblBackTitle.Top = ToInt16(NewBackTemplate::TitleCentre.y() - lblBackTitle.Height / 2.0);
}

/// Kept: in a text of several lines "|" breaks a line as well; in a single line it is printed.
QStringList BackLines(QString text)
{
    const QString lineBreak = QStringLiteral("\r\n");
    if (!text.contains(lineBreak))
        return {text};
    return text.replace(lineBreak, QStringLiteral("|")).split(QLatin1Char('|'));
}

void PrintBackText(PictureBox& picACardPP, const Box& lblBackTitle, const QString& text)
{
    int line = 0;
    for (const QString& piece : BackLines(text)) {
        const double x = std::floor(picACardPP.Width() / 2.0 - picACardPP.TextWidth(piece) / 2);
        PrintAt(picACardPP, x, lblBackTitle.Top + picACardPP.TextHeight(piece) * line, piece);
        ++line;
    }
}

} // namespace

void ShowNewCardBack(Workshop& workshop, int16 index)
{
    workshop.Problems.clear();
    NewBackTemplate& t = workshop.Templates.NewBack;
    const NewCardBack& back = workshop.Set.NewCardBacks[index];
    PictureBox& picNewBack = *t.picNewBack.Surface;
    t.lblBackTitle.Font = back.Font;
    t.lblBackTitle.Caption = back.BackText;
    PictureBox measure;
    UseFont(measure, back.Font);
    SizeBackTitle(t.lblBackTitle, measure);
    CenterBackTitle(t.lblBackTitle);
    if (back.UsePicture) {
        picNewBack.SetPicture(workshop.Pictures.LoadPicture(back.Picture));
    } else {
        picNewBack.SetPicture(ColouredTemplate(workshop.Art, back, picNewBack.Size(), picNewBack.Scale()));
    }
    picNewBack.Freeze();
}

void DrawNewCardBack(Workshop& workshop, int16 index)
{
    ShowNewCardBack(workshop, index);
    const NewBackTemplate& t = workshop.Templates.NewBack;
    const NewCardBack& back = workshop.Set.NewCardBacks[index];
    PictureBox& picACardPP = workshop.Surfaces.picACardPP;
    BeginCard(picACardPP, t.picNewBack, workshop.Carried.Piece);
    picACardPP.SetPicture(t.picNewBack.Surface->GetPicture());
    UseFont(picACardPP, back.Font);
    PrintBackText(picACardPP, t.lblBackTitle, back.BackText);
    PrintWatermark(picACardPP, t.lblWatermark);
    workshop.Carried.Piece = picACardPP.Pen();
    picACardPP.Freeze();
    RotatePictureShifted(picACardPP, workshop.Surfaces.picACard, Turn::Clockwise);
}

} // namespace deckforge
