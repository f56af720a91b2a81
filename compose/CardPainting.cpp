// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/CardPainting.h"

#include "compose/FontScheme.h"
#include "compose/IgnoreFailure.h"

namespace deckforge {

namespace {

void PaintClipped(PictureBox& surface, const Picture& white, const FramedPicture& picture, const QRect& frame)
{
    surface.PaintStretched(white, frame);
    if (!picture.IsSet)
        return;
    if (const std::optional<Clip> clip = ClipPicture(picture.Clip))
        surface.PaintPart(picture.Image.Surface->GetPicture(), frame.topLeft() + clip->Target, clip->Source);
}

} // namespace

void PaintPictureBlock(PictureBox& surface, const Picture& white, const FramedPicture& picture)
{
    if (!picture.IsShown)
        return;
    const QRect frame = picture.Frame.Place().translated(picture.Origin);
    IgnoreFailure([&] { PaintClipped(surface, white, picture, frame); });
    if (picture.Clip.FrameInset > 0) {
        surface.LineBox(frame.left(), frame.top(), frame.left() + frame.width() - 1,
                        frame.top() + frame.height() - 1);
    }
}

void BeginCard(PictureBox& surface, const Box& preview, const FontSpec& pen)
{
    surface.SetSize({preview.Width, preview.Height});
    surface.SetPicture({});
    UseFont(surface, pen);
}

void PaintBackground(Workshop& workshop, const Box& preview, const QString& path, Colour colour,
                     const FontSpec& pen)
{
    PictureBox& picACard = workshop.Surfaces.picACard;
    BeginCard(picACard, preview, pen);
    IgnoreFailure([&] { picACard.SetPicture(workshop.Pictures.LoadPicture(path)); });
    picACard.SetBackColor(colour);
}

void PaintSymbol(Workshop& workshop, const Box& symbol, QPoint origin)
{
    if (workshop.Set.Header.Symbol.isEmpty())
        return;
    const QPoint place = symbol.Place().topLeft() + origin;
    workshop.Surfaces.picACard.PaintPicture(symbol.Surface->GetPicture(), place.x(), place.y());
}

void PrintCentred(PictureBox& surface, const Box& box, const QString& text, QPoint origin)
{
    PrintAt(surface, Centred(box, surface.TextWidth(text)) + origin.x(), box.Top + origin.y(), text);
}

void PrintWrapped(PictureBox& surface, const Box& box, const QString& text, LineForm form, QPoint origin)
{
    const TextColumn column = {
        .Left = box.Left + origin.x(), .Top = box.Top + origin.y(), .Width = box.Width, .Form = form};
    IgnoreFailure([&] { WrapAndPrint(surface, text, column); });
}

void PrintIndex(PictureBox& surface, double x, double y, int16 index)
{
    surface.CurrentX = x;
    surface.CurrentY = y;
    surface.PrintNumber(index);
}

void PrintWatermark(PictureBox& surface, const Box& watermark, QPoint origin)
{
    UseFont(surface, watermark.Font);
    PrintCentred(surface, watermark, watermark.Caption, origin);
}

void ShowRun::ReportMissingOn(Box& reporter, const QString& path, const char* message)
{
    m_reporter = &reporter;
    m_message = QLatin1String(message) + QStringLiteral("\r\n") + path;
}

void ShowRun::Handle(const RunTimeError& error)
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

void LoadFramedPicture(ShowRun& run, Workshop& workshop, Box& image, const QString& path)
{
    run([&] { image.ShowAtNaturalSize(workshop.Pictures.LoadPicture(path)); });
    if (image.Surface->GetPicture().IsEmpty())
        image.ShowAtNaturalSize({});
    image.Surface->Refresh();
}

} // namespace deckforge
