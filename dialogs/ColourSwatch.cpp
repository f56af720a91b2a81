// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/ColourSwatch.h"

#include <QPainter>

namespace deckforge {

namespace {

/// Mixes two colours; share is that of the second one.
QColor Blended(QColor first, QColor second, float share)
{
    const auto between = [share](float a, float b) { return a + share * (b - a); };
    return QColor::fromRgbF(between(first.redF(), second.redF()), between(first.greenF(), second.greenF()),
                            between(first.blueF(), second.blueF()));
}

} // namespace

ColourSwatch::ColourSwatch(QWidget* parent) : QAbstractButton(parent)
{
    setAttribute(Qt::WA_Hover); // repaint on hover
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void ColourSwatch::SetColour(QColor colour)
{
    m_colour = colour;
    setAccessibleDescription(colour.name());
    update();
}

QSize ColourSwatch::sizeHint() const
{
    const int line = fontMetrics().height();
    return {5 * line / 2, line};
}

void ColourSwatch::paintEvent(QPaintEvent* /*event*/)
{
    const int border = hasFocus() || isDown() ? 2 : 1;
    const int gap = hasFocus() ? 1 : 0; // separates the border from a fill of the same colour
    QPainter painter(this);
    const auto fill = [&](int inset, QColor colour) {
        painter.fillRect(rect().adjusted(inset, inset, -inset, -inset), colour);
    };
    fill(0, BorderColour());
    fill(border, palette().color(QPalette::Base));
    fill(border + gap, isEnabled() ? m_colour : Blended(m_colour, palette().color(QPalette::Window), 0.5F));
}

/// Contrasts with the window in every palette, and more on hover.
QColor ColourSwatch::BorderColour() const
{
    if (hasFocus() && !isDown())
        return palette().color(QPalette::Highlight);
    const float contrast = underMouse() || isDown() ? 0.8F : 0.5F;
    return Blended(palette().color(QPalette::Window), palette().color(QPalette::WindowText), contrast);
}

} // namespace deckforge
