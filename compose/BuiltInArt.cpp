// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/BuiltInArt.h"

#include "compose/CardTemplates.h"
#include "core/Vocabulary.h"
#include "imaging/ColourReduction.h"

#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <array>

namespace deckforge {

namespace {

/// All backs of a set at low scales, a dozen at scale 16.
qsizetype CacheBytes(int scale)
{
    constexpr qsizetype least = qsizetype(32) << 20;
    constexpr qsizetype perScale = qsizetype(3) << 19;
    return std::max(least, perScale * scale * scale);
}

constexpr QSize CardArtSize = {150, 254};
constexpr QSize DoubleArtSize = {302, 254};
constexpr QSize LargeBackArtSize = DoubleCardSize;
constexpr QSize BackTemplateSize = {254, 150};
constexpr int LargeCardBack = 3;
constexpr std::array PaletteBacks = {15, 16, 18};

} // namespace

BuiltInArt::BuiltInArt(int scale, int fineness)
    : m_scale(scale), m_fineness(fineness), m_rendered(CacheBytes(scale))
{
}

Picture BuiltInArt::imgCB(int index)
{
    if (index < 0 || index >= BuiltInBackCount)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const bool hasPalette = std::ranges::find(PaletteBacks, index) != PaletteBacks.end();
    return Rendered(QStringLiteral("backs/imgCB-%1.svg").arg(index, 2, 10, QLatin1Char('0')), CardArtSize,
                    hasPalette ? Depth::Colours256 : Depth::TrueColour);
}

Picture BuiltInArt::imgChB(int index)
{
    if (index < 0 || index > LargeCardBack)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return Rendered(QStringLiteral("backs/imgChB-%1.svg").arg(index),
                    index == LargeCardBack ? LargeBackArtSize : DoubleArtSize,
                    index == LargeCardBack ? Depth::Colours16 : Depth::TrueColour);
}

Picture BuiltInArt::picCharacter()
{
    return Rendered(QStringLiteral("picCharacter.svg"), DoubleArtSize);
}

Picture BuiltInArt::picBackTemplate(int fineness)
{
    return Rendered(QStringLiteral("picBackTemplate.svg"), BackTemplateSize, Depth::BlackAndWhite,
                    m_scale * fineness);
}

Picture BuiltInArt::picBack()
{
    return Rendered(QStringLiteral("backs/picBack.svg"), CardArtSize);
}

Picture BuiltInArt::Rendered(const QString& name, QSize size, Depth depth)
{
    if (m_scale > 1)
        return Rendered(name, size, Depth::TrueColour, m_scale);
    Picture natural = Rendered(name, size, depth, 1);
    if (m_fineness == 1)
        return natural;
    return Picture(natural.Pixels(), Rendered(name, size, Depth::TrueColour, m_fineness));
}

Picture BuiltInArt::Rendered(const QString& name, QSize size, Depth depth, int scale)
{
    const QString key = name + QString::number(scale);
    if (const Picture* kept = m_rendered.object(key))
        return *kept;
    QImage image(size * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QSvgRenderer(QStringLiteral(":/deckforge/") + name).render(&painter);
    painter.end();
    Picture picture(AtDepth(image, depth), scale);
    m_rendered.insert(key, new Picture(picture), std::min(image.sizeInBytes(), m_rendered.maxCost()));
    return picture;
}

QImage BuiltInArt::AtDepth(const QImage& image, Depth depth)
{
    switch (depth) {
    case Depth::TrueColour:
        break;
    case Depth::Colours256:
        return WithColours(image, 256, Dither::No);
    case Depth::Colours16:
        return WithColours(image, 16, Dither::No);
    case Depth::BlackAndWhite: // flood fill needs edges without grey
        return image.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither)
            .convertToFormat(QImage::Format_RGB32);
    }
    return image;
}

} // namespace deckforge
