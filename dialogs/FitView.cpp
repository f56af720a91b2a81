// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/FitView.h"

#include <QKeyEvent>
#include <QPainter>
#include <cmath>

namespace deckforge {

namespace {

constexpr double ZoomStep = 1.1;
constexpr int SmallSide = 1600;
constexpr QSize PreferredSize = {520, 420};
constexpr double FrameShare = 0.84; ///< of the view

QImage SmallCopy(const QImage& photo)
{
    if (photo.width() <= SmallSide && photo.height() <= SmallSide)
        return photo;
    return photo.scaled(SmallSide, SmallSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

FitView::FitView(const QImage& photo, const Crop& crop, QWidget* parent)
    : QWidget(parent), m_photo(photo), m_small(SmallCopy(photo)), m_crop(crop)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SizeAllCursor);
    setAccessibleName(QStringLiteral("Photo behind the frame"));
    setAccessibleDescription(QStringLiteral("Arrow keys move the photo, Plus and Minus zoom."));
    setMinimumSize(PreferredSize / 2);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize FitView::sizeHint() const
{
    return PreferredSize;
}

void FitView::SetZoom(double zoom)
{
    m_crop.SetZoom(zoom, m_crop.Part().center());
    update();
    Q_EMIT Changed();
}

QRectF FitView::FramePlace() const
{
    QRectF place({0, 0}, m_crop.Part().size().scaled(QSizeF(size()) * FrameShare, Qt::KeepAspectRatio));
    place.moveCenter(QRectF(rect()).center());
    return place;
}

double FitView::ViewPixelsPerPhotoPixel() const
{
    return FramePlace().width() / m_crop.Part().width();
}

QPointF FitView::OnPhoto(QPointF point) const
{
    return (point - FramePlace().topLeft()) / ViewPixelsPerPhotoPixel() + m_crop.Part().topLeft();
}

void FitView::paintEvent(QPaintEvent* /*event*/)
{
    constexpr QColor shade(0, 0, 0, 150);
    const double scale = ViewPixelsPerPhotoPixel();
    const QRectF frame = FramePlace();
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Dark));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const bool needsAll = scale * devicePixelRatioF() * m_photo.width() > m_small.width();
    painter.drawImage(
        QRectF(frame.topLeft() - m_crop.Part().topLeft() * scale, QSizeF(m_photo.size()) * scale),
        needsAll ? m_photo : m_small);
    painter.setClipRegion(QRegion(rect()) - frame.toAlignedRect());
    painter.fillRect(rect(), shade);
    painter.setClipping(false);
    painter.setPen(QPen(hasFocus() ? palette().color(QPalette::Highlight) : QColor(Qt::white), 2));
    painter.drawRect(frame);
}

void FitView::mousePressEvent(QMouseEvent* event)
{
    m_pointer = event->position();
}

void FitView::mouseMoveEvent(QMouseEvent* event)
{
    Move((m_pointer - event->position()) / ViewPixelsPerPhotoPixel());
    m_pointer = event->position();
}

void FitView::wheelEvent(QWheelEvent* event)
{
    constexpr double notch = 120;
    ZoomBy(std::pow(ZoomStep, event->angleDelta().y() / notch), OnPhoto(event->position()));
    event->accept();
}

void FitView::keyPressEvent(QKeyEvent* event)
{
    const double step = m_crop.Part().width() / 100 * (event->modifiers() & Qt::ShiftModifier ? 10 : 1);
    const QPointF middle = m_crop.Part().center();
    switch (event->key()) {
    case Qt::Key_Left:
        return Move({step, 0});
    case Qt::Key_Right:
        return Move({-step, 0});
    case Qt::Key_Up:
        return Move({0, step});
    case Qt::Key_Down:
        return Move({0, -step});
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return ZoomBy(ZoomStep, middle);
    case Qt::Key_Minus:
        return ZoomBy(1 / ZoomStep, middle);
    default:
        QWidget::keyPressEvent(event);
    }
}

void FitView::ZoomBy(double factor, QPointF anchor)
{
    m_crop.SetZoom(m_crop.Zoom() * factor, anchor);
    update();
    Q_EMIT Changed();
}

void FitView::Move(QPointF by)
{
    m_crop.Move(by);
    update();
    Q_EMIT Changed();
}

} // namespace deckforge
