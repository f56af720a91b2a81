// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/PictureLoader.h"

#include "imaging/PictureFormats.h"
#include "imaging/WmfConverter.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QBuffer>
#include <QImageReader>

namespace deckforge {

namespace {

/// A file may be as large as its decoded picture, plus headers.
constexpr qint64 MaxFileBytes = MaxDecodedBytes + (qint64(1) << 20);
constexpr qsizetype KeptBytes = qsizetype(32) << 20;

[[noreturn]] void RejectPicture()
{
    throw RunTimeError(ErrorNumber::InvalidPicture);
}

QByteArray ReadPictureFile(const QString& path)
{
    try {
        return ReadWholeFile(path, MaxFileBytes);
    } catch (const RunTimeError& error) {
        if (error.Number() == ErrorNumber::OutOfMemory)
            RejectPicture();
        throw;
    }
}

/// Converts to the two formats that are drawn without conversion: one for opaque pictures, one for others.
QImage ForDrawing(QImage image)
{
    return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                    : QImage::Format_RGB32);
}

QImage DecodeWithReader(QByteArray bytes, const QByteArray& format)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    const QSize declared = reader.size();
    const QSize size(declared.width(), qAbs(declared.height())); // BMP heights are negative for top-down rows
    if (size.isEmpty() || qint64(size.width()) * size.height() > MaxDecodedPixels)
        RejectPicture();
    QImage image = reader.read();
    if (image.isNull())
        RejectPicture();
    return ForDrawing(std::move(image));
}

} // namespace

Picture DecodePicture(const QString& path)
{
    const QByteArray bytes = ReadPictureFile(path);
    switch (FormatOf(bytes)) {
    case PictureFormat::Bmp:
        return Picture(DecodeWithReader(bytes, "bmp"));
    case PictureFormat::Jpeg:
        return Picture(DecodeWithReader(bytes, "jpeg"));
    case PictureFormat::Gif:
        return Picture(DecodeWithReader(bytes, "gif"));
    case PictureFormat::Wmf:
        return Picture(DecodeWithReader(WmfToPng(bytes, MaxDecodedPixels), "png"));
    case PictureFormat::Unknown:
        break;
    }
    RejectPicture();
}

PictureLoader::PictureLoader() : m_kept(KeptBytes) {}

Picture PictureLoader::LoadPicture(const QString& path)
{
    if (path.isEmpty())
        return {};
    const std::optional<FileAttributes> file = AttributesOf(path);
    if (const Kept* kept = m_kept.object(path);
        kept != nullptr && file && HaveSameContents(kept->File, *file)) {
        if (kept->Failure)
            throw RunTimeError(*kept->Failure);
        return kept->Decoded;
    }
    Picture picture;
    try {
        picture = DecodePicture(path);
    } catch (const RunTimeError& error) {
        if (error.Number() == ErrorNumber::InvalidPicture && file)
            m_kept.insert(path,
                          new Kept{{}, *file, error.At(path)}); // rejecting a file can take seconds, too
        throw error.At(path);
    }
    if (file)
        m_kept.insert(path, new Kept{picture, *file, {}}, picture.Pixels().sizeInBytes());
    return picture;
}

} // namespace deckforge
