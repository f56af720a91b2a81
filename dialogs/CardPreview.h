#pragma once

#include "compose/PreviewBoxes.h"

#include <QTransform>
#include <QWidget>

class QPainter;

namespace deckforge {

/// Paints the boxes of templates as the live preview of a card, as large as the zoom makes them, and tells
/// what the user does with them. Cards have their own colours, whatever the palette.
///
/// The boxes stay where they are; whoever changes one calls update(). Points in signals are whole pixels of
/// the card, whatever the zoom, counted from the top left corner of their box.
class CardPreview final : public QWidget {
    Q_OBJECT

public:
    static constexpr int MostZoom = 3;

    /// In painting order, as PreviewBoxes() gives them.
    explicit CardPreview(std::vector<PreviewBox> boxes, QWidget* parent = nullptr);

    /// From 1 to MostZoom. A pixel of the card is as many whole pixels of the screen, so that its lines are
    /// sharp on every screen.
    void SetZoom(int zoom);
    [[nodiscard]] int Zoom() const { return m_zoom; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// The foremost box under a point of the widget; null for the background.
    [[nodiscard]] const Box* BoxAt(QPointF point) const;

    /// The box on which another one lies; null where it stands on the preview itself.
    [[nodiscard]] const Box* ParentOf(const Box& box) const;

    /// Gives the keyboard to a picture that can be moved.
    void FocusOn(const Box& picture);

    /// To be called when other boxes are seen than before: the keyboard then goes to a picture among them.
    void SettleFocus();

Q_SIGNALS:
    /// The left button went down on a box, and the pointer moves with no other button held.
    void Pressed(const deckforge::Box* box, QPoint point);
    void Dragged(const deckforge::Box* box, QPoint point, QPoint sinceLast);
    void Clicked(const deckforge::Box* box); ///< the button also came up on it
    void DoubleClicked(const deckforge::Box* box);
    /// A key while the picture has the keyboard.
    void KeyPressed(const deckforge::Box* picture, Qt::Key key, Qt::KeyboardModifiers held);
    /// The pointer rests on a box.
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
    /// A box that is seen, in pixels of the card.
    struct SeenBox {
        const PreviewBox* Row;
        QRect Place;
        QRect Clip; ///< what its parents leave of the preview
    };

    [[nodiscard]] std::vector<SeenBox> SeenBoxes() const;
    [[nodiscard]] const PreviewBox* RowAt(QPointF point) const;
    [[nodiscard]] QPoint CornerOf(const Box& box) const;
    [[nodiscard]] QPoint PixelAt(QPointF point) const;
    void Press(const PreviewBox& row, QPointF point);
    [[nodiscard]] QRect Bounds() const;
    [[nodiscard]] double Scale() const;        ///< points of the widget to a pixel of the card
    [[nodiscard]] QTransform FromCard() const; ///< pixels of the card to points of the widget
    void PaintFocus(QPainter& painter, const std::vector<SeenBox>& boxes) const;

    std::vector<PreviewBox> m_boxes;
    int m_zoom = 2;
    const Box* m_pressed = nullptr; ///< by the left button
    QPoint m_pointer;               ///< where a drag has come to, in pixels of the card
    const Box* m_focus = nullptr;   ///< the picture that has the keyboard
};

} // namespace deckforge
