// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/IncomingPictures.h"

#include "dialogs/FitPicture.h"
#include "imaging/PictureFormats.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>

namespace deckforge {

IncomingPictures::IncomingPictures(const QMimeData& data)
{
    for (const QUrl& url : data.urls()) {
        const QString path = url.toLocalFile();
        if (PictureSuffixes().contains(QFileInfo(path).suffix(), Qt::CaseInsensitive))
            Files += path;
    }
    if (Files.isEmpty() && data.hasImage())
        Pixels = data.imageData().value<QImage>();
}

QStringList IncomingPictures::Kept(const CardSet& set) const
{
    return Pixels.isNull() ? Files : QStringList(KeepPicture(set, Pixels));
}

bool PicturePasteFilter::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride ||
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste))
        return false;
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr || data->hasText() || IncomingPictures(*data).IsEmpty())
        return false;
    event->ignore();
    return true;
}

} // namespace deckforge
