#pragma once

#include "compose/PreviewBoxes.h"

#include <QTransform>
#include <QWidget>

class QPainter;

namespace deckforge {

/// Paints the boxes of a template as the live preview of a card, at the largest whole zoom that fits, in its
/// lower left corner. Cards have their own colours, whatever the palette.
///
/// The boxes stay where they are; whoever changes one calls update().
class CardPreview final : public QWidget {
public:
    /// In painting order, as PreviewBoxes() gives them.
    explicit CardPreview(std::vector<PreviewBox> boxes, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Pixels of the screen to one of the card, so that its lines are sharp on every screen.
    [[nodiscard]] int Zoom() const;

    /// Whether a point of the widget is on the card or its back; the rest is background.
    [[nodiscard]] bool IsOnCard(QPointF point) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRect Bounds() const;
    [[nodiscard]] QTransform FromCard() const; ///< pixels of the card to points of the widget

    std::vector<PreviewBox> m_boxes;
};

} // namespace deckforge
