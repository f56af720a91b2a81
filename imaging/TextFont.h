// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/FontSpec.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QString>
#include <array>

namespace deckforge {

/// The font of a surface; Size is in points.
struct TextFont {
    QString Name;
    double Size = 0;
    bool Bold = false;
    bool Italic = false;

    friend bool operator==(const TextFont&, const TextFont&) = default;
};

size_t qHash(const TextFont& font, size_t seed = 0);

inline constexpr double MaxPoints = 2160; ///< letters 30 inches high

/// The font of a new surface, about as wide as the bold one of the default font scheme.
[[nodiscard]] const TextFont& DefaultFont();

/// The font of a set as a drawable one. Untrusted sets may have fonts without a name or with impossible
/// sizes, which are replaced by those of DefaultFont().
[[nodiscard]] TextFont DrawableFont(const FontSpec& font);

/// Of cards, whatever the screen; printers differ.
inline constexpr double CardPixelsPerInch = 96;

/// Points in whole pixels: 7 points are 9 pixels of a card.
[[nodiscard]] int PixelSize(double points, double pixelsPerInch = CardPixelsPerInch);

/// The font for QPainter. Common fonts are replaced by those of the Liberation family with the same widths
/// ("Small Fonts" by Liberation Sans), others that are not installed by a similar one of the system, else by
/// Liberation Sans. Letters that a font lacks come from the same fonts on every machine. Without hinting, so
/// that widths scale exactly, and without kerning and ligatures, so that text width is the sum of character
/// widths.
[[nodiscard]] QFont DrawnFont(const TextFont& font, double pixelsPerInch = CardPixelsPerInch);

/// The text as it is measured and drawn: control characters, tabs included, become blanks, and soft hyphens
/// become hyphens, so that text width is the sum of character widths.
[[nodiscard]] QString Printable(QStringView text);

/// Measures of a font in pixels: logical ones of a card, or those of a printer.
class FontMeasures {
public:
    explicit FontMeasures(const TextFont& font, double pixelsPerInch = CardPixelsPerInch);

    [[nodiscard]] const QFont& Font() const { return m_font; }
    [[nodiscard]] double Width(QStringView text) const;
    /// Line spacing: ascent, descent and leading, rounded up.
    [[nodiscard]] int LineHeight() const { return m_lineHeight; }
    /// From the top of a line to its baseline, rounded up.
    [[nodiscard]] int Ascent() const { return m_ascent; }

private:
    QFont m_font;
    QFontMetricsF m_metrics;
    int m_lineHeight;
    int m_ascent;
    std::array<double, 256> m_advances; ///< of the characters up to U+00FF
};

} // namespace deckforge
