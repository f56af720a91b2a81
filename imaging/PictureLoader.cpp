#include "imaging/PictureLoader.h"

#include "imaging/PictureFormats.h"
#include "imaging/WmfConverter.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QBuffer>
#include <QImageReader>

namespace deckforge {

namespace {

/// A picture that can be shown takes no more bytes as a file than decoded, but for headers.
constexpr qint64 MaxFileBytes = MaxDecodedBytes + (qint64(1) << 20);
constexpr qsizetype KeptBytes = qsizetype(32) << 20;

[[noreturn]] void RefusePicture()
{
    throw RunTimeError(ErrorNumber::InvalidPicture);
}

QByteArray ReadPictureFile(const QString& path)
{
    try {
        return ReadWholeFile(path, MaxFileBytes);
    } catch (const RunTimeError& error) {
        if (error.Number() == ErrorNumber::OutOfMemory)
            RefusePicture();
        throw;
    }
}

/// One pixel format for opaque pictures and one for others: the two that are drawn without conversion.
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
    const QSize told = reader.size();
    const QSize size(told.width(), qAbs(told.height())); // below 0 where the rows of a BMP run top-down
    if (size.isEmpty() || qint64(size.width()) * size.height() > MaxDecodedPixels)
        RefusePicture();
    QImage image = reader.read();
    if (image.isNull())
        RefusePicture();
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
    RefusePicture();
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
            m_kept.insert(path, new Kept{{}, *file, error.At(path)}); // finding that out can take seconds
        throw error.At(path);
    }
    if (file)
        m_kept.insert(path, new Kept{picture, *file, {}}, picture.Pixels().sizeInBytes());
    return picture;
}

} // namespace deckforge
