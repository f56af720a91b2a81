// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

namespace deckforge {

/// The part of a photo that fills a frame: inside the photo, and with the proportions of the frame.
/// Coordinates are pixels of the photo from its top left corner.
class Crop {
public:
    static constexpr double MaxZoom = 16;

    /// The largest part, from the middle of the photo. Both sizes are at least 1 x 1.
    Crop(QSize photo, QSize frame);

    [[nodiscard]] QRectF Part() const { return m_part; }
    /// 1 for the largest part, 2 for one of half its width.
    [[nodiscard]] double Zoom() const { return m_largest.width() / m_part.width(); }

    /// Zooms within 1 and MaxZoom, so that the anchor stays in its place in the frame as far as the photo
    /// reaches.
    void SetZoom(double zoom, QPointF anchor);
    /// Moves the part over the photo, as far as the photo reaches.
    void Move(QPointF by);
    /// A part chosen before; it is zoomed and moved as needed to fit.
    void SetPart(const QRectF& part);

private:
    void KeepInside();

    QSizeF m_photo;
    QSizeF m_largest;
    QRectF m_part;
};

} // namespace deckforge
