// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/PictureView.h"

#include "compose/CardTemplates.h"

#include <QPainter>

namespace deckforge {

PictureView::PictureView(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PictureView::ShowPicture(const Picture& picture, const QString& words)
{
    m_picture = picture;
    m_words = words;
    update();
}

/// Includes the border.
QSize PictureView::sizeHint() const
{
    return CardSize + QSize(2, 2);
}

void PictureView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    const QRect inside = rect().adjusted(1, 1, -1, -1);
    if (m_picture.IsEmpty()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(inside.adjusted(4, 4, -4, -4), Qt::AlignCenter | Qt::TextWordWrap, m_words);
        return;
    }
    QSize size = m_picture.Size();
    if (size.width() > inside.width() || size.height() > inside.height())
        size.scale(inside.size(), Qt::KeepAspectRatio);
    QRect place({0, 0}, size);
    place.moveCenter(inside.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, m_picture.Pixels());
}

} // namespace deckforge
