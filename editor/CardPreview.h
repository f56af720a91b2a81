#pragma once

#include "compose/PreviewBoxes.h"

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

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRect Bounds() const;

    std::vector<PreviewBox> m_boxes;
};

} // namespace deckforge
