#include "compose/CardPainting.h"

#include "compose/Attempt.h"
#include "compose/FontScheme.h"
#include "compose/TextFitting.h"

namespace deckforge {

void PaintFramedPicture(PictureBox& surface, const Picture& white, const FramedPicture& picture)
{
    const QRect frame = picture.Frame.Place().translated(picture.Origin);
    surface.PaintStretched(white, frame);
    if (!picture.IsSet)
        return;
    if (const std::optional<Clip> clip = ClipPicture(picture.Clip))
        surface.PaintPart(picture.Image.Surface->GetPicture(), frame.topLeft() + clip->Target, clip->Source);
}

void OutlineFrame(PictureBox& surface, const Box& frame, QPoint origin)
{
    const int left = frame.Left + origin.x();
    const int top = frame.Top + origin.y();
    surface.LineBox(left, top, left + frame.Width - 1, top + frame.Height - 1);
}

void PrintCentred(PictureBox& surface, const Box& box, const QString& text)
{
    PrintAt(surface, Centred(box, surface.TextWidth(text)), box.Top, text);
}

void PrintWatermark(PictureBox& surface, const Box& watermark)
{
    UseFont(surface, watermark.Font);
    PrintCentred(surface, watermark, watermark.Caption);
}

void ShowRun::LoadsFor(Box& box, const QString& path)
{
    m_box = &box;
    m_path = path;
}

void ShowRun::Answer(const RunTimeError& error)
{
    if (error.IsMissingFile() && m_box != nullptr) {
        PictureBox& surface = *m_box->Surface;
        surface.SetPicture({});
        PrintAt(surface, 0, 0, QStringLiteral("Missing picture.\r\n") + m_path);
    } else if (error.Number() != ErrorNumber::InvalidPropertyValue) {
        throw error;
    }
}

void TellCannotDraw(UserPort& user, const RunTimeError& error)
{
    user.ShowMessage(
        {.Text = QStringLiteral("Error while drawing the card.\r\n\r\n") + error.NumberAndDescription(),
         .Title = QStringLiteral("Cannot draw picture correct"),
         .Style = BoxStyle::Critical});
}

} // namespace deckforge
