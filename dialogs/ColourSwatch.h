// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractButton>

namespace deckforge {

/// A button that shows a colour; a click asks for another one.
class ColourSwatch final : public QAbstractButton {
public:
    explicit ColourSwatch(QWidget* parent = nullptr);

    void SetColour(QColor colour);
    [[nodiscard]] QColor Colour() const { return m_colour; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QColor BorderColour() const;

    QColor m_colour = Qt::white;
};

} // namespace deckforge
