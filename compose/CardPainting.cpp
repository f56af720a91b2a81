// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/CardPainting.h"

#include "compose/FontScheme.h"
#include "compose/IgnoreFailure.h"

namespace deckforge {

namespace {

void PrintWrapped(PictureBox& surface, const Box& label)
{
    const QPoint corner = label.OnCard();
    const bool isCentred = label.Align == Alignment::Centre;
    const TextColumn column = {.Left = corner.x(),
                               .Top = corner.y(),
                               .Width = label.Width,
                               .Form = isCentred ? LineForm::Centred : LineForm::Plain};
    IgnoreFailure([&] { WrapAndPrint(surface, label.Caption, column); });
}

} // namespace

ClipInput ClipInFrame(const Box& frame, const Box& image, double left, double top)
{
    return {.Frame = {frame.Width, frame.Height},
            .Picture = {image.Width, image.Height},
            .PictureLeft = left,
            .PictureTop = top,
            .FrameInset = frame.BorderWidth()};
}

void BeginCard(PictureBox& surface, const Box& preview, const FontSpec& pen)
{
    surface.SetSize({preview.Width, preview.Height});
    surface.SetPicture({});
    UseFont(surface, pen);
}

void PrintLine(PictureBox& surface, const Box& label)
{
    PrintAt(surface, Aligned(label, surface.TextWidth(label.Caption)), label.OnCard().y(), label.Caption);
}

void PrintTexts(PictureBox& surface, const BoxList& boxes, const SetHeader& header)
{
    for (const Box* label : boxes.Boxes) {
        if (label->Form == TextForm::None)
            continue;
        if (label->FontOfSet)
            UseFont(surface, header.*label->FontOfSet);
        if (label->Form == TextForm::Line)
            PrintLine(surface, *label);
        else
            PrintWrapped(surface, *label);
    }
}

void PrintWatermark(PictureBox& surface, const Box& watermark)
{
    UseFont(surface, watermark.Font);
    PrintLine(surface, watermark);
}

Composer::Composer(Workshop& workshop, int16 index)
    : m_index(index), m_header(workshop.Set.Header), m_standard(workshop.Templates.Standard),
      m_surfaces(workshop.Surfaces), m_picACard(workshop.Surfaces.picACard), m_pens(workshop.Carried),
      m_art(workshop.Art), m_pictures(workshop.Pictures), m_problems(workshop.Problems)
{
}

void Composer::ReportMissingOn(Box& reporter, const QString& path, const char* message)
{
    m_reporter = &reporter;
    m_message = QLatin1String(message) + QStringLiteral("\r\n") + path;
}

void Composer::Handle(const RunTimeError& error)
{
    if (error.IsMissingFile() && m_reporter != nullptr) {
        PictureBox& surface = *m_reporter->Surface;
        surface.SetPicture({});
        PrintAt(surface, 0, 0, m_message);
        m_problems.push_back({error.Place(), error.Description()});
    } else if (error.Number() != ErrorNumber::InvalidPropertyValue) {
        throw error;
    }
}

void Composer::LoadFramedPicture(Box& image, const QString& path)
{
    Load([&] { image.ShowAtNaturalSize(m_pictures.LoadPicture(path)); });
    if (image.Surface->GetPicture().IsEmpty())
        image.ShowAtNaturalSize({});
    image.Surface->Refresh();
}

void Composer::LoadBackground(Box& card, const QString& path, Colour colour)
{
    ReportMissingOn(m_standard.picCard, path);
    Load([&] { card.Surface->SetPicture(m_pictures.LoadPicture(path)); });
    card.Surface->SetBackColor(colour); // also removes an earlier message
}

void Composer::PaintBackground(const Box& preview, const QString& path, Colour colour)
{
    BeginCard(m_picACard, preview, m_pens.Card);
    IgnoreFailure([&] { m_picACard.SetPicture(m_pictures.LoadPicture(path)); });
    m_picACard.SetBackColor(colour);
}

void Composer::PaintFramed(PictureBox& surface, const Box& frame, const Box& image, const ClipInput& clip)
{
    const QRect place(frame.OnCard(), clip.Frame);
    IgnoreFailure([&] {
        surface.PaintStretched(m_surfaces.picWhite, place);
        if (const std::optional<Clip> seen = ClipPicture(clip))
            surface.PaintPart(image.Surface->GetPicture(), place.topLeft() + seen->Target, seen->Source);
    });
    if (clip.FrameInset > 0)
        surface.LineBox(place.left(), place.top(), place.right(), place.bottom());
}

void Composer::PaintSymbol(const Box& symbol)
{
    if (m_header.Symbol.isEmpty())
        return;
    const QPoint corner = symbol.OnCard();
    m_picACard.PaintPicture(symbol.Surface->GetPicture(), corner.x(), corner.y());
}

void Composer::PrintIndex(const Box& number, int top)
{
    if (!m_header.Autonumber)
        return;
    UseFont(m_picACard, m_header.FontAutonumber);
    m_picACard.CurrentX = Aligned(number, m_picACard.TextWidth(QString::number(m_index)));
    m_picACard.CurrentY = top;
    m_picACard.PrintNumber(m_index);
}

void Composer::FinishCard(const Box& watermark)
{
    PrintWatermark(m_picACard, watermark);
    m_pens.Card = m_picACard.Pen();
}

} // namespace deckforge
