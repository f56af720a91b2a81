#include "imaging/TextFont.h"

#include <cmath>

namespace deckforge {

namespace {

constexpr double PointsPerInch = 72;
constexpr double PixelsPerInch = 96;

const QString& Substitute()
{
    static const QString name = QStringLiteral("Liberation Sans");
    return name;
}

bool IsSubstituted(const QString& name)
{
    return name == QLatin1String("Small Fonts") || name == QLatin1String("Arial");
}

bool NeedsShaping(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0xFF; });
}

} // namespace

size_t qHash(const TextFont& font, size_t seed)
{
    return qHashMulti(seed, font.Name, font.Size, font.Bold, font.Italic);
}

int PixelSize(double points)
{
    return std::max(1, static_cast<int>(std::lround(points * PixelsPerInch / PointsPerInch)));
}

QFont DrawnFont(const TextFont& font)
{
    QFont drawn;
    if (IsSubstituted(font.Name))
        drawn.setFamilies({Substitute()});
    else
        drawn.setFamilies({font.Name, Substitute()});
    drawn.setPixelSize(PixelSize(font.Size));
    drawn.setBold(font.Bold);
    drawn.setItalic(font.Italic);
    drawn.setHintingPreference(QFont::PreferNoHinting);
    drawn.setKerning(false);
    drawn.setStyleStrategy(
        QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias | QFont::PreferNoShaping));
    return drawn;
}

FontMeasures::FontMeasures(const TextFont& font)
    : m_font(DrawnFont(font)), m_metrics(m_font),
      m_lineHeight(
          static_cast<int>(std::ceil(m_metrics.ascent() + m_metrics.descent() + m_metrics.leading()))),
      m_ascent(static_cast<int>(std::ceil(m_metrics.ascent())))
{
    for (std::size_t c = 0; c < m_advances.size(); ++c)
        m_advances[c] = m_metrics.horizontalAdvance(QChar(static_cast<char16_t>(c)));
}

double FontMeasures::Width(QStringView text) const
{
    if (NeedsShaping(text))
        return m_metrics.horizontalAdvance(text.toString());
    double width = 0;
    for (const QChar c : text)
        width += m_advances[c.unicode()];
    return width;
}

} // namespace deckforge
