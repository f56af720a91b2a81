// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/CardPreview.h"

#include "imaging/TextFont.h"

#include <QHash>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace deckforge {

namespace {

constexpr QRgb WindowGrey = qRgb(240, 240, 240);

/// What a parent contributes to its children, in pixels of the card.
struct Inside {
    QPoint Origin;
    QRect Clip; ///< empty if the parent is hidden
};

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
    painter.setFont(DrawnFont(DrawableFont(box.Font)));
    painter.setPen(QColor(ToRgb(box.Font.Color)));
    painter.drawText(place, TextFlags(box.Align),
                     caption.replace(QLatin1String("\r\n"), QLatin1String("\n")));
}

void PaintSurface(QPainter& painter, const PictureBox& surface, const QRect& content)
{
    surface.ShowOn(painter, content.topLeft(), static_cast<int>(std::ceil(painter.deviceTransform().m11())));
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

void PaintBox(QPainter& painter, const Box& box, const QRect& place)
{
    if (box.BorderWidth() > 0)
        PaintBorder(painter, place);
    const QRect content = ContentOf(box, place);
    painter.setClipRect(content, Qt::IntersectClip);
    switch (box.Look) {
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
    case BoxLook::WhiteFrame:
        painter.fillRect(content, Qt::white);
        break;
    case BoxLook::Outline:
        break;
    }
}

/// The focused picture handles arrow and character keys with any modifier; all other keys, F1 among them, go
/// to the window.
bool IsForWindow(const QKeyEvent& event)
{
    constexpr std::array arrows = {Qt::Key_Home,  Qt::Key_End,  Qt::Key_Left,   Qt::Key_Up,
                                   Qt::Key_Right, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
    const bool isArrow = std::find(arrows.begin(), arrows.end(), event.key()) != arrows.end();
    return !isArrow && (event.text().isEmpty() || event.modifiers() & Qt::ControlModifier);
}

Qt::CursorShape PointerFor(DragAxis moves)
{
    switch (moves) {
    case DragAxis::UpDown:
        return Qt::SizeVerCursor;
    case DragAxis::LeftRight:
        return Qt::SizeHorCursor;
    case DragAxis::All:
        return Qt::SizeAllCursor;
    case DragAxis::None:
        break;
    }
    return Qt::ArrowCursor;
}

} // namespace

CardPreview::CardPreview(const std::vector<Box*>& boxes, QWidget* parent)
    : QWidget(parent), m_boxes(boxes.begin(), boxes.end())
{
    setAccessibleName(QStringLiteral("Preview of the card"));
    setMouseTracking(true);
    SettleFocus();
}

void CardPreview::SetZoom(int zoom)
{
    m_zoom = std::clamp(zoom, 1, MaxZoom);
    updateGeometry();
    update();
}

QSize CardPreview::sizeHint() const
{
    const QSizeF size = QSizeF(Bounds().size()) * Scale();
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

QSize CardPreview::minimumSizeHint() const
{
    return sizeHint();
}

const Box* CardPreview::BoxAt(QPointF point) const
{
    const QPoint pixel = PixelAt(point);
    const Box* foremost = nullptr;
    for (const SeenBox& seen : SeenBoxes()) {
        if (seen.Shown->Look != BoxLook::Outline && (seen.Place & seen.Clip).contains(pixel))
            foremost = seen.Shown;
    }
    return foremost;
}

void CardPreview::FocusOn(const Box& picture)
{
    m_focus = &picture;
    SettleFocus();
    setFocus();
}

void CardPreview::SettleFocus()
{
    const Box* first = nullptr;
    const Box* kept = nullptr;
    for (const SeenBox& seen : SeenBoxes()) {
        const Box* const box = seen.Shown;
        if (box->Drag != DragAxis::All)
            continue;
        if (!first)
            first = box;
        if (box == m_focus)
            kept = box;
    }
    m_focus = kept ? kept : first;
    setFocusPolicy(m_focus ? Qt::StrongFocus : Qt::NoFocus);
    update();
}

bool CardPreview::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    Q_EMIT TipWanted(BoxAt(help->pos()), help->globalPos());
    return true;
}

void CardPreview::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setTransform(FromCard(), true);
    const std::vector<SeenBox> boxes = SeenBoxes();
    for (const SeenBox& seen : boxes) {
        painter.save();
        painter.setClipRect(seen.Clip);
        PaintBox(painter, *seen.Shown, seen.Place);
        painter.restore();
    }
    if (hasFocus())
        PaintFocus(painter, boxes);
}

void CardPreview::mousePressEvent(QMouseEvent* event)
{
    const Box* const box = BoxAt(event->position());
    if (box && event->button() == Qt::LeftButton)
        Press(*box, event->position());
    else
        event->ignore();
}

void CardPreview::Press(const Box& box, QPointF point)
{
    m_pressed = &box;
    m_pointer = PixelAt(point);
    if (box.Drag == DragAxis::All)
        FocusOn(box);
    Q_EMIT Pressed(m_pressed, m_pointer - CornerOf(box));
}

void CardPreview::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton) {
        const Box* const box = BoxAt(event->position());
        setCursor(PointerFor(box ? box->Drag : DragAxis::None));
    } else if (m_pressed && event->buttons() == Qt::LeftButton) {
        const QPoint before = std::exchange(m_pointer, PixelAt(event->position()));
        Q_EMIT Dragged(m_pressed, m_pointer - CornerOf(*m_pressed), m_pointer - before);
    }
}

void CardPreview::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const Box* const pressed = std::exchange(m_pressed, nullptr);
    if (pressed && pressed == BoxAt(event->position()))
        Q_EMIT Clicked(pressed);
}

/// The second press begins a drag on boxes that can be moved, as the first does.
void CardPreview::mouseDoubleClickEvent(QMouseEvent* event)
{
    const Box* const box = BoxAt(event->position());
    if (!box || event->button() != Qt::LeftButton)
        event->ignore(); // the window shows its version
    else if (box->Drag != DragAxis::None)
        Press(*box, event->position());
    else
        Q_EMIT DoubleClicked(box);
}

void CardPreview::keyPressEvent(QKeyEvent* event)
{
    if (m_focus && !IsForWindow(*event))
        Q_EMIT KeyPressed(m_focus, static_cast<Qt::Key>(event->key()), event->modifiers());
    else
        QWidget::keyPressEvent(event);
}

std::vector<CardPreview::SeenBox> CardPreview::SeenBoxes() const
{
    std::vector<SeenBox> seen;
    QHash<const Box*, Inside> insides;
    insides.insert(nullptr, {{0, 0}, Bounds()});
    for (const Box* box : m_boxes) {
        const Inside outer = insides.value(box->Parent);
        const QRect place = box->Place().translated(outer.Origin);
        const QRect content = ContentOf(*box, place);
        const bool isSeen = box->Visible && !outer.Clip.isEmpty();
        insides.insert(box, {content.topLeft(), isSeen ? content & outer.Clip : QRect()});
        if (isSeen)
            seen.push_back({box, place, outer.Clip});
    }
    return seen;
}

/// Works for hidden boxes as well, such as one dragged out of its frame.
QPoint CardPreview::CornerOf(const Box& box) const
{
    const QPoint corner = box.Place().topLeft();
    const Box* const parent = box.Parent;
    if (!parent)
        return corner;
    return corner + ContentOf(*parent, {CornerOf(*parent), parent->Place().size()}).topLeft();
}

QPoint CardPreview::PixelAt(QPointF point) const
{
    const QPointF onCard = FromCard().inverted().map(point);
    return {static_cast<int>(std::floor(onCard.x())), static_cast<int>(std::floor(onCard.y()))};
}

double CardPreview::Scale() const
{
    const double ratio = devicePixelRatioF();
    return std::max(1.0, std::nearbyint(m_zoom * ratio)) / ratio;
}

QTransform CardPreview::FromCard() const
{
    const QRect bounds = Bounds();
    const double scale = Scale();
    QTransform transform;
    transform.translate(0, height() - scale * bounds.height());
    transform.scale(scale, scale);
    transform.translate(-bounds.left(), -bounds.top());
    return transform;
}

QRect CardPreview::Bounds() const
{
    QRect bounds;
    for (const Box* box : m_boxes) {
        if (!box->Parent)
            bounds |= box->Place();
    }
    return bounds;
}

/// A dashed line around the visible part of the picture, dark and light so that it shows on any colour.
void CardPreview::PaintFocus(QPainter& painter, const std::vector<SeenBox>& boxes) const
{
    for (const SeenBox& seen : boxes) {
        if (seen.Shown != m_focus)
            continue;
        const QRectF line = QRectF(seen.Clip).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setPen(QPen(Qt::white, 0));
        painter.drawRect(line);
        painter.setPen(QPen(Qt::black, 0, Qt::DotLine));
        painter.drawRect(line);
    }
}

} // namespace deckforge
