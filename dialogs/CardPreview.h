// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/CardTemplates.h"

#include <QTransform>
#include <QWidget>

class QPainter;

namespace deckforge {

/// Live preview of a card: paints the boxes of templates at the current zoom and reports what the user does
/// with them. The colours are those of the card, independent of the palette.
///
/// The boxes must outlive the preview; call update() after changing one. Points in signals are whole pixels
/// of the card, independent of the zoom, relative to the top left corner of their box.
class CardPreview final : public QWidget {
    Q_OBJECT

public:
    static constexpr int MaxZoom = 3;

    /// In painting order.
    explicit CardPreview(const std::vector<Box*>& boxes, QWidget* parent = nullptr);

    /// From 1 to MaxZoom. One pixel of the card covers `zoom` by `zoom` whole pixels of the screen, so that
    /// lines stay sharp.
    void SetZoom(int zoom);
    [[nodiscard]] int Zoom() const { return m_zoom; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// The topmost box under a point of the widget; null for the background.
    [[nodiscard]] const Box* BoxAt(QPointF point) const;

    /// Gives the focus to a picture that can be moved.
    void FocusOn(const Box& picture);

    /// Call after boxes are shown or hidden: moves the focus to a visible picture.
    void SettleFocus();

Q_SIGNALS:
    /// The left button was pressed on a box; the pointer moves while only that button is held.
    void Pressed(const deckforge::Box* box, QPoint point);
    void Dragged(const deckforge::Box* box, QPoint point, QPoint sinceLast);
    void Clicked(const deckforge::Box* box); ///< released on the same box
    void DoubleClicked(const deckforge::Box* box);
    /// A key was pressed while the picture has the focus.
    void KeyPressed(const deckforge::Box* picture, Qt::Key key, Qt::KeyboardModifiers held);
    /// The pointer rests on a box; a tool tip may be shown.
    void TipWanted(const deckforge::Box* box, QPoint globalPoint);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// A visible box, in pixels of the card.
    struct SeenBox {
        const Box* Shown;
        QRect Place;
        QRect Clip; ///< visible part inside its parents
    };

    [[nodiscard]] std::vector<SeenBox> SeenBoxes() const;
    [[nodiscard]] QPoint CornerOf(const Box& box) const;
    [[nodiscard]] QPoint PixelAt(QPointF point) const;
    void Press(const Box& box, QPointF point);
    [[nodiscard]] QRect Bounds() const;
    [[nodiscard]] double Scale() const;        ///< widget coordinates per pixel of the card
    [[nodiscard]] QTransform FromCard() const; ///< from pixels of the card to widget coordinates
    void PaintFocus(QPainter& painter, const std::vector<SeenBox>& boxes) const;

    std::vector<const Box*> m_boxes;
    int m_zoom = 2;
    const Box* m_pressed = nullptr; ///< with the left button
    QPoint m_pointer;               ///< last position of the drag, in pixels of the card
    const Box* m_focus = nullptr;   ///< the picture that has the focus
};

} // namespace deckforge
