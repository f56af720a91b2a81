#include "compose/BuiltInArt.h"

#include "core/Vocabulary.h"

#include <QPainter>
#include <QSvgRenderer>

namespace deckforge {

namespace {

constexpr qsizetype KeptBytes = qsizetype(32) << 20;
constexpr QSize CardArtSize = {150, 254};
constexpr QSize DoubleArtSize = {302, 254};
constexpr QSize LargeBackArtSize = {304, 256};
constexpr QSize BackTemplateSize = {254, 150};
constexpr int LargeCardBack = 3;

} // namespace

BuiltInArt::BuiltInArt(int scale) : m_scale(scale), m_rendered(KeptBytes) {}

Picture BuiltInArt::imgCB(int index)
{
    if (index < 0 || index >= BuiltInBackCount)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return Rendered(QStringLiteral("backs/imgCB-%1.svg").arg(index, 2, 10, QLatin1Char('0')), CardArtSize);
}

Picture BuiltInArt::imgChB(int index)
{
    if (index < 0 || index > LargeCardBack)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return Rendered(QStringLiteral("backs/imgChB-%1.svg").arg(index),
                    index == LargeCardBack ? LargeBackArtSize : DoubleArtSize);
}

Picture BuiltInArt::picCharacter()
{
    return Rendered(QStringLiteral("picCharacter.svg"), DoubleArtSize);
}

Picture BuiltInArt::picBackTemplate()
{
    return Rendered(QStringLiteral("picBackTemplate.svg"), BackTemplateSize);
}

Picture BuiltInArt::picBack()
{
    return Rendered(QStringLiteral("backs/picBack.svg"), CardArtSize);
}

Picture BuiltInArt::Rendered(const QString& name, QSize size)
{
    if (const Picture* kept = m_rendered.object(name))
        return *kept;
    QImage image(size * m_scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QSvgRenderer(QStringLiteral(":/deckforge/") + name).render(&painter);
    painter.end();
    const Picture picture(image, m_scale);
    m_rendered.insert(name, new Picture(picture), image.sizeInBytes());
    return picture;
}

} // namespace deckforge
