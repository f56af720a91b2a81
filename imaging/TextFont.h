#pragma once

#include "platform/FontSpec.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QString>
#include <array>

namespace deckforge {

/// What a surface keeps of its font; Size in points.
struct TextFont {
    QString Name;
    double Size = 0;
    bool Bold = false;
    bool Italic = false;

    friend bool operator==(const TextFont&, const TextFont&) = default;
};

size_t qHash(const TextFont& font, size_t seed = 0);

inline constexpr double MostPoints = 2160; ///< letters of thirty inches

/// What a new surface has, so that a text measured with it is nearly as wide as one set in the scheme's bold.
[[nodiscard]] const TextFont& UsualFont();

/// A font of a set as one that can be drawn. Sets from strangers can have one without a name or with a size
/// that no font has: these are the usual font's then.
[[nodiscard]] TextFont DrawableFont(const FontSpec& font);

/// Of a card, whatever the screen; a printer has more.
inline constexpr double CardPixelsPerInch = 96;

/// Points as whole pixels: 7 points are 9 pixels of a card.
[[nodiscard]] int PixelSize(double points, double pixelsPerInch = CardPixelsPerInch);

/// The font as it is drawn here. The names "Small Fonts" and "Arial" stand for Liberation Sans, which also
/// stands in for every font that this machine lacks. Unhinted, so that widths scale exactly, without kerning
/// and ligatures, so that a text is as wide as its characters.
[[nodiscard]] QFont DrawnFont(const TextFont& font, double pixelsPerInch = CardPixelsPerInch);

/// The text as it is measured and drawn: a control character, a tab among them, takes the room of a blank,
/// and a soft hyphen is a hyphen. So every character has a width of its own, and a text is as wide as their
/// sum.
[[nodiscard]] QString Printable(QStringView text);

/// Measures of one font in pixels: the logical ones of a card, or those of a printer.
class FontMeasures {
public:
    explicit FontMeasures(const TextFont& font, double pixelsPerInch = CardPixelsPerInch);

    [[nodiscard]] const QFont& Font() const { return m_font; }
    [[nodiscard]] double Width(QStringView text) const;
    /// From one line to the next: ascent, descent and leading, rounded up.
    [[nodiscard]] int LineHeight() const { return m_lineHeight; }
    /// From the top of a line to its base line, rounded up.
    [[nodiscard]] int Ascent() const { return m_ascent; }

private:
    QFont m_font;
    QFontMetricsF m_metrics;
    int m_lineHeight;
    int m_ascent;
    std::array<double, 256> m_advances; ///< of the characters up to U+00FF
};

} // namespace deckforge
