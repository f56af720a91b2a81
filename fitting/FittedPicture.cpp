// SPDX-License-Identifier: GPL-3.0-or-later

#include "fitting/FittedPicture.h"

#include "imaging/PictureLoader.h"
#include "imaging/Resampling.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RunTimeError.h"
#include "platform/SaveFile.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

namespace deckforge {

namespace {

const QString& PhotoKey()
{
    static const QString key = QStringLiteral("Fitted-Photo");
    return key;
}

const QString& PartKey()
{
    static const QString key = QStringLiteral("Fitted-Part");
    return key;
}

/// "12.5 0 400 300".
QString TextOfPart(const QRectF& part)
{
    return QStringLiteral("%1 %2 %3 %4").arg(part.x()).arg(part.y()).arg(part.width()).arg(part.height());
}

QRectF PartOfText(const QString& text)
{
    const QStringList numbers = text.split(QLatin1Char(' '));
    if (numbers.size() != 4)
        return {};
    return {numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(), numbers[3].toDouble()};
}

} // namespace

void WritePng(const QImage& image, const QString& path)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        throw RunTimeError(ErrorNumber::OutOfMemory);
    SaveFile(path, bytes);
}

int TwinScale(QSizeF part, QSize frame)
{
    return std::clamp(static_cast<int>(part.width() / frame.width()), 1, MaxTwinScale);
}

void WriteFitted(const QImage& photo, const FittedFrom& from, QSize frame, const QString& path)
{
    const QRect part = from.Part.toAlignedRect() & photo.rect();
    QImage image = Resampled(photo, part, frame);
    image.setText(PhotoKey(), from.Photo);
    image.setText(PartKey(), TextOfPart(from.Part));
    if (const int scale = TwinScale(from.Part.size(), frame); scale > 1)
        WritePng(Resampled(photo, part, frame * scale), PrintTwinPath(path, scale));
    WritePng(image, path); // last: a twin without its picture is not used
}

std::optional<FittedFrom> OriginOf(const QString& path)
{
    const QImageReader reader(PathToOpen(path), "png");
    const FittedFrom from = {.Photo = reader.text(PhotoKey()), .Part = PartOfText(reader.text(PartKey()))};
    if (from.Photo.isEmpty() || from.Part.isEmpty())
        return std::nullopt;
    return from;
}

QString NewPicturePath(const QString& folder, const QString& photo)
{
    QString stem = QFileInfo(NamePart(photo)).completeBaseName();
    if (stem.isEmpty())
        stem = QStringLiteral("Picture");
    const QStringList existing = QDir(folder).entryList(QDir::AllEntries);
    const auto isTaken = [&](const QString& name) {
        return std::ranges::any_of(existing, [&](const QString& entry) {
            return entry.startsWith(name + QLatin1Char('.'), Qt::CaseInsensitive) ||
                   entry.startsWith(name + QLatin1Char('@'), Qt::CaseInsensitive);
        });
    };
    QString name = stem;
    for (int number = 2; isTaken(name); ++number)
        name = QStringLiteral("%1 %2").arg(stem).arg(number);
    return WithSeparator(folder) + name + QStringLiteral(".png");
}

} // namespace deckforge
