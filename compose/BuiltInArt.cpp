#include "compose/BuiltInArt.h"

#include "core/Vocabulary.h"

#include <QPainter>
#include <QSvgRenderer>

namespace deckforge {

namespace {

constexpr QSize CardArtSize = {150, 254};

} // namespace

BuiltInArt::BuiltInArt(int scale) : m_scale(scale) {}

Picture BuiltInArt::imgCB(int index)
{
    if (index < 0 || index >= BuiltInBackCount)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return Rendered(QStringLiteral("backs/imgCB-%1.svg").arg(index, 2, 10, QLatin1Char('0')), CardArtSize);
}

Picture BuiltInArt::picBack()
{
    return Rendered(QStringLiteral("backs/picBack.svg"), CardArtSize);
}

Picture BuiltInArt::Rendered(const QString& name, QSize size)
{
    Picture& picture = m_rendered[name];
    if (picture.IsEmpty()) {
        QImage image(size * m_scale, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QSvgRenderer(QStringLiteral(":/deckforge/") + name).render(&painter);
        painter.end();
        picture = Picture(image, m_scale);
    }
    return picture;
}

} // namespace deckforge
