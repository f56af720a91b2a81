#include "editor/CardPreview.h"

#include "imaging/TextFont.h"

#include <QHash>
#include <QPainter>

namespace deckforge {

namespace {

constexpr int UsualZoom = 2;
constexpr QRgb WindowGrey = qRgb(240, 240, 240);

/// What a parent means for its children, in pixels of the card.
struct Inside {
    QPoint Origin;
    QRect Clip; ///< empty where the parent is hidden
};

/// A set from a stranger can name a font of no size at all.
TextFont FontOf(const FontSpec& font)
{
    constexpr double usualPoints = 7;
    const bool hasSize = font.Size > 0 && font.Size <= PictureBox::MostPoints;
    return {.Name = font.Name.isEmpty() ? QStringLiteral("Small Fonts") : font.Name,
            .Size = hasSize ? font.Size : usualPoints,
            .Bold = font.Bold,
            .Italic = font.Italic};
}

int TextFlags(Alignment align)
{
    constexpr int wrapped = Qt::AlignTop | Qt::TextWordWrap;
    switch (align) {
    case Alignment::Right:
        return wrapped | Qt::AlignRight;
    case Alignment::Centre:
        return wrapped | Qt::AlignHCenter;
    case Alignment::Left:
        break;
    }
    return wrapped | Qt::AlignLeft;
}

void PaintLabel(QPainter& painter, const Box& box, const QRect& place)
{
    QString caption = box.Caption;
    painter.setFont(DrawnFont(FontOf(box.Font)));
    painter.setPen(QColor(ToRgb(box.Font.Color)));
    painter.drawText(place, TextFlags(box.Align),
                     caption.replace(QLatin1String("\r\n"), QLatin1String("\n")));
}

void PaintSurface(QPainter& painter, const PictureBox& surface, const QRect& content)
{
    painter.drawImage(QRect(content.topLeft(), surface.Size()), surface.Image().Pixels());
}

void PaintBorder(QPainter& painter, const QRect& place)
{
    const QRegion outside = QRegion(place) - QRegion(place.adjusted(1, 1, -1, -1));
    for (const QRect& side : outside)
        painter.fillRect(side, Qt::black);
}

QRect ContentOf(const Box& box, const QRect& place)
{
    const int border = box.BorderWidth();
    return place.adjusted(border, border, -border, -border);
}

void PaintBox(QPainter& painter, const PreviewBox& row, const QRect& place)
{
    const Box& box = *row.Shown;
    if (box.BorderWidth() > 0)
        PaintBorder(painter, place);
    const QRect content = ContentOf(box, place);
    painter.setClipRect(content, Qt::IntersectClip);
    switch (row.Look) {
    case BoxLook::Surface:
        PaintSurface(painter, *box.Surface, content);
        break;
    case BoxLook::Picture:
        if (!box.Surface->GetPicture().IsEmpty())
            PaintSurface(painter, *box.Surface, content);
        break;
    case BoxLook::Label:
        PaintLabel(painter, box, content);
        break;
    case BoxLook::Frame:
        painter.fillRect(content, QColor(WindowGrey));
        break;
    }
}

} // namespace

CardPreview::CardPreview(std::vector<PreviewBox> boxes, QWidget* parent)
    : QWidget(parent), m_boxes(std::move(boxes))
{
    setAccessibleName(QStringLiteral("Preview of the card"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize CardPreview::sizeHint() const
{
    constexpr QMargins slack = {8, 8, 8, 8}; // a layout that gives a little less must not halve the zoom
    return (UsualZoom * Bounds().size()).grownBy(slack);
}

QSize CardPreview::minimumSizeHint() const
{
    return Bounds().size();
}

int CardPreview::Zoom() const
{
    const QSize pixels = size() * devicePixelRatioF();
    const QRect bounds = Bounds();
    return std::max(1, std::min(pixels.width() / bounds.width(), pixels.height() / bounds.height()));
}

void CardPreview::paintEvent(QPaintEvent* /*event*/)
{
    const QRect bounds = Bounds();
    QPainter painter(this);
    painter.setTransform(FromCard(), true);

    QHash<const Box*, Inside> insides;
    insides.insert(nullptr, {{0, 0}, bounds});
    for (const PreviewBox& row : m_boxes) {
        const Inside outer = insides.value(row.Parent);
        const QRect place = row.Shown->Place().translated(outer.Origin);
        const QRect content = ContentOf(*row.Shown, place);
        const bool isSeen = row.Shown->Visible && !outer.Clip.isEmpty();
        insides.insert(row.Shown, {content.topLeft(), isSeen ? content & outer.Clip : QRect()});
        if (!isSeen)
            continue;
        painter.save();
        painter.setClipRect(outer.Clip);
        PaintBox(painter, row, place);
        painter.restore();
    }
}

bool CardPreview::IsOnCard(QPointF point) const
{
    return FromCard().mapRect(QRectF(Bounds())).contains(point);
}

QTransform CardPreview::FromCard() const
{
    const QRect bounds = Bounds();
    const double scale = Zoom() / devicePixelRatioF();
    QTransform transform;
    transform.translate(0, height() - scale * bounds.height());
    transform.scale(scale, scale);
    transform.translate(-bounds.left(), -bounds.top());
    return transform;
}

QRect CardPreview::Bounds() const
{
    QRect bounds;
    for (const PreviewBox& row : m_boxes) {
        if (!row.Parent)
            bounds |= row.Shown->Place();
    }
    return bounds;
}

} // namespace deckforge
