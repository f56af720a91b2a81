#include "dialogs/ColourSwatch.h"

#include <QPainter>

namespace deckforge {

namespace {

/// A colour on the way from one to the other, with share of the second.
QColor Blended(QColor first, QColor second, float share)
{
    const auto between = [share](float a, float b) { return a + share * (b - a); };
    return QColor::fromRgbF(between(first.redF(), second.redF()), between(first.greenF(), second.greenF()),
                            between(first.blueF(), second.blueF()));
}

} // namespace

ColourSwatch::ColourSwatch(QWidget* parent) : QAbstractButton(parent)
{
    setAttribute(Qt::WA_Hover); // paints when the pointer comes and goes
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
    const int gap = hasFocus() ? 1 : 0; // parts the border from a colour like its own
    QPainter painter(this);
    const auto fill = [&](int inset, QColor colour) {
        painter.fillRect(rect().adjusted(inset, inset, -inset, -inset), colour);
    };
    fill(0, BorderColour());
    fill(border, palette().color(QPalette::Base));
    fill(border + gap, isEnabled() ? m_colour : Blended(m_colour, palette().color(QPalette::Window), 0.5F));
}

/// Seen on the window whatever its palette, and more so under the pointer.
QColor ColourSwatch::BorderColour() const
{
    if (hasFocus() && !isDown())
        return palette().color(QPalette::Highlight);
    const float contrast = underMouse() || isDown() ? 0.8F : 0.5F;
    return Blended(palette().color(QPalette::Window), palette().color(QPalette::WindowText), contrast);
}

} // namespace deckforge
