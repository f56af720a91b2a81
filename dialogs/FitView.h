// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "fitting/Crop.h"

#include <QImage>
#include <QWidget>

namespace deckforge {

/// Shows a photo behind a frame. The photo is dragged, and zoomed by the wheel; the arrow keys move it, Plus
/// and Minus zoom.
class FitView final : public QWidget {
    Q_OBJECT

public:
    FitView(const QImage& photo, const Crop& crop, QWidget* parent = nullptr);

    [[nodiscard]] const Crop& Chosen() const { return m_crop; }
    /// Zooms around the middle of the frame.
    void SetZoom(double zoom);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void Changed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QRectF FramePlace() const;
    [[nodiscard]] double ViewPixelsPerPhotoPixel() const;
    [[nodiscard]] QPointF OnPhoto(QPointF point) const;
    void ZoomBy(double factor, QPointF anchor);
    void Move(QPointF by);

    QImage m_photo;
    QImage m_small; ///< for painting all of a large photo
    Crop m_crop;
    QPointF m_pointer;
};

} // namespace deckforge
