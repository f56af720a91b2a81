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

bool HasPictures(const QMimeData& data)
{
    return !IncomingPictures(data).IsEmpty();
}

QString SetFileIn(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    const QString path = urls.size() == 1 ? urls.front().toLocalFile() : QString();
    return path.endsWith(QLatin1String(".dkf"), Qt::CaseInsensitive) ? path : QString();
}

bool PicturePasteFilter::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride ||
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste))
        return false;
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr || data->hasText() || !HasPictures(*data))
        return false;
    event->ignore();
    return true;
}

} // namespace deckforge
