// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/PictureLoader.h"

#include "imaging/DrawingFormat.h"
#include "imaging/PictureDecoders.h"
#include "imaging/PictureFormats.h"
#include "imaging/WmfConverter.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RunTimeError.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

namespace deckforge {

namespace {

/// A file may be as large as its decoded picture, plus headers.
constexpr qint64 MaxFileBytes = MaxDecodedBytes + (qint64(1) << 20);
/// Some photos of a phone, or all pictures of a usual set.
constexpr qsizetype KeptBytes = qsizetype(192) << 20;

[[noreturn]] void RejectPicture(const QString& reason)
{
    throw RunTimeError(ErrorNumber::InvalidPicture, QStringLiteral("Invalid picture: ") + reason);
}

[[noreturn]] void RejectLarge()
{
    RejectPicture(QStringLiteral("it has more than 33 million pixels. Save it smaller."));
}

QByteArray ReadPictureFile(const QString& path)
{
    try {
        return ReadWholeFile(path, MaxFileBytes);
    } catch (const RunTimeError& error) {
        if (error.Number() == ErrorNumber::OutOfMemory)
            RejectLarge();
        throw;
    }
}

QImage DecodeWithReader(QByteArray bytes, const char* format)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoTransform(true);
    const QSize declared = reader.size();
    const QSize size(declared.width(), qAbs(declared.height())); // BMP heights are negative for top-down rows
    if (qint64{size.width()} * size.height() > MaxDecodedPixels)
        RejectLarge();
    return size.isEmpty() ? QImage() : reader.read();
}

/// Turned by the EXIF data of the file.
QImage Upright(QImage image, QImageIOHandler::Transformations turn)
{
    if (turn.testFlag(QImageIOHandler::TransformationMirror) ||
        turn.testFlag(QImageIOHandler::TransformationFlip))
        image.mirror(turn.testFlag(QImageIOHandler::TransformationMirror),
                     turn.testFlag(QImageIOHandler::TransformationFlip));
    if (turn.testFlag(QImageIOHandler::TransformationRotate90))
        image = image.transformed(QTransform().rotate(90));
    return image;
}

QImage Decode(const QByteArray& bytes, PictureFormat format, int scale)
{
    switch (format) {
    case PictureFormat::Bmp:
        return DecodeWithReader(bytes, "bmp");
    case PictureFormat::Jpeg:
        return DecodeWithReader(bytes, "jpeg");
    case PictureFormat::Gif:
        return DecodeWithReader(bytes, "gif");
    case PictureFormat::Wmf:
        return DecodeWithReader(WmfToPng(bytes, MaxDecodedPixels, scale), "png");
    case PictureFormat::Png:
        return Upright(DecodeWithReader(bytes, "png"), OrientationOf(bytes, format));
    case PictureFormat::WebP:
        return Upright(DecodeWithReader(bytes, "webp"), OrientationOf(bytes, format));
    case PictureFormat::Tiff:
    case PictureFormat::Svg:
    case PictureFormat::Heif:
        return DecodeApart(bytes, format, scale);
    case PictureFormat::Unknown:
        break;
    }
    return {};
}

bool IsDrawing(PictureFormat format)
{
    return format == PictureFormat::Svg || format == PictureFormat::Wmf;
}

/// Draws a drawing at the scale; decodes any other picture as it is.
QImage DecodeBytes(const QByteArray& bytes, PictureFormat format, int scale)
{
    QImage image = Decode(bytes, format, scale);
    if (image.isNull())
        throw RunTimeError(ErrorNumber::InvalidPicture);
    return ForDrawing(std::move(image));
}

/// With the finer image for surfaces of that scale, if `finer` is one: of the right size and without a
/// failure. Else the picture itself is drawn.
template <class Load>
Picture WithFiner(const QImage& natural, int scale, Load&& load)
{
    try {
        const QImage finer = load();
        if (scale > 1 && finer.size() == natural.size() * scale)
            return Picture(natural, Picture(finer, scale));
    } catch (const RunTimeError&) {
    }
    return Picture(natural);
}

} // namespace

Picture DecodePicture(const QString& path)
{
    const QByteArray bytes = ReadPictureFile(path);
    return Picture(DecodeBytes(bytes, FormatOf(bytes), 1));
}

QString PrintTwinPath(const QString& path, int scale)
{
    const QString suffix = QFileInfo(path).suffix();
    const QString stem = path.chopped(suffix.isEmpty() ? 0 : suffix.size() + 1);
    return QStringLiteral("%1@%2x%3").arg(stem).arg(scale).arg(path.sliced(stem.size()));
}

std::vector<PrintTwin> PrintTwinsOf(const QString& path)
{
    const QFileInfo file(PathToOpen(path));
    static const QRegularExpression ending(QStringLiteral("^@([1-9][0-9]?)x\\.(\\w+)$"));
    std::vector<PrintTwin> twins;
    for (const QString& name : file.dir().entryList(QDir::Files)) {
        if (!name.startsWith(file.completeBaseName() + QLatin1Char('@')))
            continue;
        const auto match = ending.match(name.sliced(file.completeBaseName().size()));
        if (match.hasMatch() && PictureSuffixes().contains(match.captured(2), Qt::CaseInsensitive))
            twins.push_back({.Path = file.dir().filePath(name), .Scale = match.captured(1).toInt()});
    }
    std::ranges::sort(twins, {}, &PrintTwin::Scale);
    return twins;
}

PictureLoader::PictureLoader(int scale) : m_scale(scale), m_kept(KeptBytes) {}

QString PictureLoader::Find(const QString& path) const
{
    const bool isName = !HoldsSeparator(path); // of a packed set, whatever the working folder holds
    if (path.isEmpty() || (!isName && AttributesOf(path)))
        return path;
    for (const QString& folder : m_folders) {
        QString other = WithSeparator(folder) + NamePart(path);
        if (AttributesOf(other))
            return other;
    }
    return path;
}

/// Of several twins the one with the lowest scale from the own one on is used, or else the finest.
Picture PictureLoader::Decode(const QString& path) const
{
    const QByteArray bytes = ReadPictureFile(path);
    const PictureFormat format = FormatOf(bytes);
    const QImage natural = DecodeBytes(bytes, format, 1);
    if (m_scale == 1)
        return Picture(natural);
    const std::vector<PrintTwin> twins = PrintTwinsOf(path);
    if (!twins.empty()) {
        const auto best = std::ranges::lower_bound(twins, m_scale, {}, &PrintTwin::Scale);
        const PrintTwin& used = best == twins.end() ? twins.back() : *best;
        return WithFiner(natural, used.Scale, [&] { return DecodePicture(used.Path).Pixels(); });
    }
    if (IsDrawing(format))
        return WithFiner(natural, m_scale, [&] { return DecodeBytes(bytes, format, m_scale); });
    return Picture(natural);
}

Picture PictureLoader::LoadPicture(const QString& path)
{
    if (path.isEmpty())
        return {};
    const QString found = Find(path);
    const std::optional<FileAttributes> file = AttributesOf(found);
    if (const Kept* kept = m_kept.object(found);
        kept != nullptr && file && HaveSameContents(kept->File, *file)) {
        if (kept->Failure)
            throw RunTimeError(*kept->Failure);
        return kept->Decoded;
    }
    Picture picture;
    try {
        picture = Decode(found);
    } catch (const RunTimeError& error) {
        if (error.Number() == ErrorNumber::InvalidPicture && file)
            m_kept.insert(found,
                          new Kept{{}, *file, error.At(path)}); // rejecting a file can take seconds, too
        throw error.At(path);
    }
    if (file)
        m_kept.insert(found, new Kept{picture, *file, {}}, qMin<qsizetype>(picture.Bytes(), KeptBytes));
    return picture;
}

} // namespace deckforge
