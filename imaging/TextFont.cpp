// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/TextFont.h"

#include "imaging/Owned.h"

#include <QCache>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <fontconfig/fontconfig.h>

namespace deckforge {

namespace {

constexpr double PointsPerInch = 72;

/// Fonts with the same widths, so that texts break where they do in programs that have the original. They are
/// used even where the original is installed: a set gives the same cards everywhere.
struct MetricTwin {
    QLatin1String Name;
    QLatin1String Twin;
};
constexpr QLatin1String Sans("Liberation Sans");
constexpr MetricTwin Twins[] = {
    {.Name = QLatin1String("Small Fonts"), .Twin = Sans},
    {.Name = QLatin1String("Arial"), .Twin = Sans},
    {.Name = QLatin1String("Helvetica"), .Twin = Sans},
    {.Name = QLatin1String("Arial Narrow"), .Twin = QLatin1String("Liberation Sans Narrow")},
    {.Name = QLatin1String("Times New Roman"), .Twin = QLatin1String("Liberation Serif")},
    {.Name = QLatin1String("Courier New"), .Twin = QLatin1String("Liberation Mono")}};

/// For letters that the fonts before them lack, in this order: Arabic and symbols, then Chinese, Japanese and
/// Korean. The package depends on them.
constexpr QLatin1String Fallbacks[] = {Sans, QLatin1String("DejaVu Sans"),
                                       QLatin1String("Droid Sans Fallback")};

/// The family that the system uses for a name.
QString SystemMatch(const QString& name)
{
    const Owned<FcPattern> wanted(FcPatternCreate(), FcPatternDestroy);
    FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.toUtf8().constData()));
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const Owned<FcPattern> match(FcFontMatch(nullptr, wanted.get(), &result), FcPatternDestroy);
    FcChar8* family = nullptr;
    if (match == nullptr || FcPatternGetString(match.get(), FC_FAMILY, 0, &family) != FcResultMatch)
        return {};
    return QString::fromUtf8(reinterpret_cast<const char*>(family));
}

/// The families in the order in which they are searched for a letter. Without a twin a font that is not
/// installed is replaced by the system's similar one, if it knows any: for unknown names it has a default.
QStringList Families(const QString& name)
{
    const auto twin = std::ranges::find_if(
        Twins, [&](const MetricTwin& entry) { return name.compare(entry.Name, Qt::CaseInsensitive) == 0; });
    QStringList families;
    if (twin != std::end(Twins)) {
        families += twin->Twin;
    } else {
        static const QString unknown = SystemMatch(QStringLiteral("no such font"));
        families += name;
        if (const QString similar = SystemMatch(name); similar != unknown)
            families += similar;
    }
    for (const QLatin1String& fallback : Fallbacks)
        families += fallback;
    families.removeDuplicates();
    return families;
}

/// Asking the system takes milliseconds, and labels are painted at every key press.
QStringList KeptFamilies(const QString& name)
{
    constexpr int maxNames = 100; // a malicious set can have a font on each of its card backs
    static QCache<QString, QStringList> kept(maxNames);
    if (const QStringList* families = kept.object(name))
        return *families;
    QStringList families = Families(name);
    kept.insert(name, new QStringList(families));
    return families;
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
    drawn.setFamilies(KeptFamilies(font.Name));
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
