// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/FitPicture.h"

#include "core/PictureFolders.h"
#include "dialogs/frmFit.h"
#include "fitting/FittedPicture.h"

#include <QDir>

namespace deckforge {

namespace {

/// Where a new picture goes that is made from a photo.
QString NewPathFor(const CardSet& set, const QString& photo)
{
    const QString folder = PicturesFolder(set);
    if (!QDir().mkpath(folder))
        throw RunTimeError(ErrorNumber::PathFileAccess).At(folder);
    return NewPicturePath(folder, photo);
}

} // namespace

std::optional<QString> FitToFrame(const CardSet& set, const PictureLoader& pictures, const QString& path,
                                  QSize frame, QWidget* window)
{
    FittedFrom from = OriginOf(pictures.Find(path)).value_or(FittedFrom{});
    if (from.Photo.isEmpty() || !AttributesOf(pictures.Find(from.Photo)))
        from = {.Photo = path, .Part = {}};
    // Drawings and pictures with a print twin are as fine as they can be.
    const Picture finest =
        PictureLoader(MaxTwinScale).LoadPicture(pictures.Find(from.Photo)).ForScale(MaxTwinScale);
    const QImage& photo = finest.Pixels();
    Crop start(photo.size(), frame);
    start.SetPart(from.Part);
    const std::optional<QRectF> part = ChoosePart(photo, frame, start, window);
    if (!part)
        return std::nullopt;
    const QString fitted = NewPathFor(set, from.Photo);
    WriteFitted(photo, {.Photo = from.Photo, .Part = *part}, frame, fitted);
    return fitted;
}

QString KeepPicture(const CardSet& set, const QImage& image)
{
    QString path = NewPathFor(set, QStringLiteral("Picture"));
    WritePng(image, path);
    return path;
}

} // namespace deckforge
