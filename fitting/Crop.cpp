// SPDX-License-Identifier: GPL-3.0-or-later

#include "fitting/Crop.h"

#include <algorithm>

namespace deckforge {

Crop::Crop(QSize photo, QSize frame)
    : m_photo(photo), m_largest(QSizeF(frame).scaled(m_photo, Qt::KeepAspectRatio)), m_part({0, 0}, m_largest)
{
    m_part.moveCenter(QRectF({0, 0}, m_photo).center());
}

void Crop::SetZoom(double zoom, QPointF anchor)
{
    const QSizeF size = m_largest / std::clamp(zoom, 1.0, MaxZoom);
    const double shrink = size.width() / m_part.width();
    m_part = QRectF(anchor + (m_part.topLeft() - anchor) * shrink, size);
    KeepInside();
}

void Crop::Move(QPointF by)
{
    m_part.translate(by);
    KeepInside();
}

void Crop::SetPart(const QRectF& part)
{
    if (part.isEmpty())
        return;
    SetZoom(m_largest.width() / part.width(), part.center());
    Move(part.center() - m_part.center());
}

void Crop::KeepInside()
{
    m_part.moveLeft(std::clamp(m_part.left(), 0.0, std::max(0.0, m_photo.width() - m_part.width())));
    m_part.moveTop(std::clamp(m_part.top(), 0.0, std::max(0.0, m_photo.height() - m_part.height())));
}

} // namespace deckforge
