// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/TextFont.h"

#include <cmath>

namespace deckforge {

namespace {

constexpr double PointsPerInch = 72;

const QString& Substitute()
{
    static const QString name = QStringLiteral("Liberation Sans");
    return name;
}

bool IsSubstituted(const QString& name)
{
    return name == QLatin1String("Small Fonts") || name == QLatin1String("Arial");
}

} // namespace

const TextFont& DefaultFont()
{
    static const TextFont font = {.Name = QStringLiteral("Small Fonts"), .Size = 7};
    return font;
}

TextFont DrawableFont(const FontSpec& font)
{
    const bool hasSize = font.Size > 0 && font.Size <= MaxPoints;
    return {.Name = font.Name.isEmpty() ? DefaultFont().Name : font.Name,
            .Size = hasSize ? font.Size : DefaultFont().Size,
            .Bold = font.Bold,
            .Italic = font.Italic};
}

size_t qHash(const TextFont& font, size_t seed)
{
    return qHashMulti(seed, font.Name, font.Size, font.Bold, font.Italic);
}

int PixelSize(double points, double pixelsPerInch)
{
    return std::max(1, static_cast<int>(std::lround(points * pixelsPerInch / PointsPerInch)));
}

QFont DrawnFont(const TextFont& font, double pixelsPerInch)
{
    QFont drawn;
    if (IsSubstituted(font.Name))
        drawn.setFamilies({Substitute()});
    else
        drawn.setFamilies({font.Name, Substitute()});
    drawn.setPixelSize(PixelSize(font.Size, pixelsPerInch));
    drawn.setBold(font.Bold);
    drawn.setItalic(font.Italic);
    drawn.setHintingPreference(QFont::PreferNoHinting);
    drawn.setKerning(false);
    drawn.setStyleStrategy(
        QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias | QFont::PreferNoShaping));
    return drawn;
}

QString Printable(QStringView text)
{
    QString printable = text.toString();
    for (QChar& c : printable) {
        const QChar::Category category = c.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            c = QLatin1Char(' ');
        else if (c == QChar::SoftHyphen)
            c = QLatin1Char('-');
    }
    return printable;
}

FontMeasures::FontMeasures(const TextFont& font, double pixelsPerInch)
    : m_font(DrawnFont(font, pixelsPerInch)), m_metrics(m_font),
      m_lineHeight(
          static_cast<int>(std::ceil(m_metrics.ascent() + m_metrics.descent() + m_metrics.leading()))),
      m_ascent(static_cast<int>(std::ceil(m_metrics.ascent())))
{
    for (std::size_t c = 0; c < m_advances.size(); ++c) {
        const QChar character(static_cast<char16_t>(c));
        m_advances[c] = m_metrics.horizontalAdvance(Printable(QStringView(&character, 1)));
    }
}

double FontMeasures::Width(QStringView text) const
{
    double width = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (c < m_advances.size()) {
            width += m_advances[c];
        } else {
            const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size();
            width += m_metrics.horizontalAdvance(Printable(text.sliced(i, isPair ? 2 : 1)));
            i += isPair ? 1 : 0;
        }
    }
    return width;
}

} // namespace deckforge
