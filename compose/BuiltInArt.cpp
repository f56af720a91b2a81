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

constexpr qsizetype CacheBytes = qsizetype(32) << 20;
constexpr QSize CardArtSize = {150, 254};
constexpr QSize DoubleArtSize = {302, 254};
constexpr QSize LargeBackArtSize = DoubleCardSize;
constexpr QSize BackTemplateSize = {254, 150};
constexpr int LargeCardBack = 3;
constexpr std::array PaletteBacks = {15, 16, 18};

} // namespace

BuiltInArt::BuiltInArt(int scale) : m_scale(scale), m_rendered(CacheBytes) {}

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

Picture BuiltInArt::picBackTemplate()
{
    return Rendered(QStringLiteral("picBackTemplate.svg"), BackTemplateSize, Depth::BlackAndWhite);
}

Picture BuiltInArt::picBack()
{
    return Rendered(QStringLiteral("backs/picBack.svg"), CardArtSize);
}

Picture BuiltInArt::Rendered(const QString& name, QSize size, Depth depth)
{
    if (const Picture* kept = m_rendered.object(name))
        return *kept;
    QImage image(size * m_scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QSvgRenderer(QStringLiteral(":/deckforge/") + name).render(&painter);
    painter.end();
    Picture picture(AtDepth(image, depth), m_scale);
    m_rendered.insert(name, new Picture(picture), image.sizeInBytes());
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
