// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/PictureFormats.h"

#include "imaging/Owned.h"
#include "platform/RunTimeError.h"

#include <QtGlobal>
#include <algorithm>
#include <bit>
#include <gif_lib.h>
#include <libexif/exif-data.h>
#include <vector>

namespace deckforge {

namespace {

constexpr qint64 PlaceableHeaderBytes = 22;

/// Reads numbers from the bytes of a file. Past the end it returns 0, and IsPastEnd() is true.
class Scanner {
public:
    explicit Scanner(QByteArrayView bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool IsPastEnd() const { return m_at > m_bytes.size(); }
    [[nodiscard]] bool IsAtEnd() const { return m_at >= m_bytes.size(); }
    [[nodiscard]] qint64 At() const { return m_at; }
    void MoveTo(qint64 at) { m_at = at; }
    void Skip(qint64 count) { m_at += count; }

    quint8 Byte()
    {
        const qint64 at = m_at++;
        return at < m_bytes.size() ? static_cast<quint8>(m_bytes[at]) : quint8{0};
    }
    quint16 BigEndian16()
    {
        const quint16 high = Byte();
        return static_cast<quint16>(high << 8 | Byte());
    }
    quint16 LittleEndian16()
    {
        const quint16 low = Byte();
        return static_cast<quint16>(low | Byte() << 8);
    }
    quint32 LittleEndian32()
    {
        const quint32 low = LittleEndian16();
        return low | static_cast<quint32>(LittleEndian16()) << 16;
    }

private:
    QByteArrayView m_bytes;
    qint64 m_at = 0;
};

/// Qt treats colour masks as 8-bit ones and shows wider ones in wrong colours.
void CheckBmpMasks(QByteArrayView bytes, int count)
{
    constexpr qint64 masksField = 54;
    constexpr quint32 maxMask = 0xFF; // shifted to bit 0
    Scanner in(bytes);
    in.MoveTo(masksField);
    for (int i = 0; i < count; ++i) {
        const quint32 mask = in.LittleEndian32();
        if (mask != 0 && mask >> std::countr_zero(mask) > maxMask)
            throw RunTimeError(
                ErrorNumber::InvalidPicture,
                QStringLiteral("Invalid picture: the BMP file has more than 8 bits per colour. "
                               "Save it with 24 bits per pixel."));
    }
}

/// Pixels run from the offset in the header to the end; compressed ones specify their length.
bool IsWholeBmp(QByteArrayView bytes)
{
    constexpr qint64 offsetField = 10;
    constexpr quint32 uncompressed = 0;
    constexpr quint32 bitFields = 3;
    Scanner in(bytes);
    in.MoveTo(offsetField);
    const qint64 offset = in.LittleEndian32();
    const quint32 headerSize = in.LittleEndian32();
    constexpr quint32 oldHeader = 12; // BITMAPCOREHEADER: 16-bit size, never compressed
    constexpr quint32 alphaHeader = 56;
    const bool isOld = headerSize == oldHeader;
    const qint64 width = isOld ? in.LittleEndian16() : static_cast<qint32>(in.LittleEndian32());
    const qint64 height = isOld ? in.LittleEndian16() : static_cast<qint32>(in.LittleEndian32());
    in.LittleEndian16(); // planes
    const qint64 bits = in.LittleEndian16();
    const quint32 compression = isOld ? uncompressed : in.LittleEndian32();
    const qint64 imageSize = isOld ? 0 : in.LittleEndian32();
    constexpr qint64 maxPixels = 1 << 20; // per side, far more than can be decoded
    constexpr qint64 maxBits = 32;
    if (in.IsPastEnd() || width <= 0 || width > maxPixels || qAbs(height) > maxPixels || bits > maxBits)
        return false;
    if (compression == bitFields)
        CheckBmpMasks(bytes, headerSize < alphaHeader ? 3 : 4);
    const bool hasRows = compression == uncompressed || compression == bitFields;
    const qint64 rowBytes = (width * bits + 31) / 32 * 4;
    // Compressed data has at most two bytes per pixel and two per line end. Qt would also decode whatever
    // follows.
    constexpr qint64 slack = qint64(1) << 20;
    const qint64 maxCompressed = 2 * (width + 1) * qAbs(height) + slack;
    if (!hasRows && bytes.size() - offset > maxCompressed)
        return false;
    return offset + (hasRows ? rowBytes * qAbs(height) : imageSize) <= bytes.size();
}

/// Walks the markers to the end of the image, skipping stray bytes between segments as decoders do.
///
/// Limits the number of scans, since each may cost a pass over the whole picture in a few bytes. Encoders
/// write about a dozen.
bool IsWholeJpeg(QByteArrayView bytes)
{
    constexpr quint8 markerStart = 0xFF;
    constexpr quint8 endOfImage = 0xD9;
    constexpr quint8 startOfScan = 0xDA;
    constexpr int maxScans = 64;
    // 0 is an escaped 0xFF data byte; 1 and the restart markers have no segment.
    const auto isAlone = [](quint8 marker) { return marker <= 1 || (marker >= 0xD0 && marker <= 0xD7); };
    Scanner in(bytes);
    in.Skip(2);
    int scans = 0;
    while (!in.IsAtEnd()) {
        if (in.Byte() != markerStart)
            continue;
        quint8 marker = in.Byte();
        while (marker == markerStart && !in.IsAtEnd())
            marker = in.Byte(); // fill bytes
        if (marker == endOfImage)
            return scans > 0 && !in.IsPastEnd();
        if (isAlone(marker))
            continue;
        if (marker == startOfScan && ++scans > maxScans)
            return false;
        const quint16 length = in.BigEndian16();
        in.Skip(length - 2);
    }
    return false;
}

int TakeGifBytes(GifFileType* gif, GifByteType* target, int size)
{
    auto& left = *static_cast<QByteArrayView*>(gif->UserData);
    const auto taken = left.first(qMin<qsizetype>(size, left.size()));
    left = left.sliced(taken.size());
    std::copy(taken.begin(), taken.end(), target);
    return static_cast<int>(taken.size());
}

/// Reads up to the descriptor of the first image.
bool FindGifPicture(GifFileType* gif)
{
    GifRecordType record = UNDEFINED_RECORD_TYPE;
    while (DGifGetRecordType(gif, &record) == GIF_OK && record == EXTENSION_RECORD_TYPE) {
        int label = 0;
        GifByteType* block = nullptr;
        if (DGifGetExtension(gif, &label, &block) != GIF_OK)
            return false;
        while (block != nullptr) {
            if (DGifGetExtensionNext(gif, &block) != GIF_OK)
                return false;
        }
    }
    return record == IMAGE_DESC_RECORD_TYPE && DGifGetImageDesc(gif) == GIF_OK;
}

/// Decodes all pixels but the last: giflib would skip all remaining codes after it.
bool HasGifPixels(GifFileType* gif)
{
    const qint64 pixels = qint64{gif->Image.Width} * gif->Image.Height;
    if (pixels < 1 || pixels > MaxDecodedPixels)
        return false;
    std::vector<GifPixelType> line(static_cast<std::size_t>(gif->Image.Width));
    for (qint64 left = pixels - 1; left > 0; left -= gif->Image.Width) {
        if (DGifGetLine(gif, line.data(), static_cast<int>(qMin<qint64>(left, gif->Image.Width))) != GIF_OK)
            return false;
    }
    return true;
}

/// Whether little data follows the pixels. A decoder would read all of it, and twelve bits can encode four
/// thousand pixels.
bool EndsGifPicture(GifFileType* gif)
{
    constexpr int maxBytes = 1024;
    GifByteType* block = nullptr;
    for (int bytes = 0; bytes <= maxBytes; bytes += *block) {
        if (DGifGetCodeNext(gif, &block) != GIF_OK)
            return false;
        if (block == nullptr)
            return true;
    }
    return false;
}

/// The first image must be complete; later ones are not shown.
bool IsWholeGif(QByteArrayView bytes)
{
    const Owned<GifFileType> gif(DGifOpen(&bytes, TakeGifBytes, nullptr),
                                 [](GifFileType* opened) { DGifCloseFile(opened, nullptr); });
    return gif != nullptr && FindGifPicture(gif.get()) && HasGifPixels(gif.get()) &&
           EndsGifPicture(gif.get());
}

/// Checks the header's own length and file size; a placeable header may precede it. Some programs include
/// that one in the file size: such files are complete if they end with the end record.
bool IsWholeWmf(QByteArrayView bytes)
{
    constexpr quint16 headerWords = 9;
    constexpr QByteArrayView endRecord("\3\0\0\0\0\0", 6);
    const qint64 start = PlaceableWmfSize(bytes) ? PlaceableHeaderBytes : 0;
    Scanner in(bytes);
    in.MoveTo(start);
    const quint16 type = in.LittleEndian16();
    const bool hasHeader = (type == 1 || type == 2) && in.LittleEndian16() == headerWords;
    in.LittleEndian16(); // version
    const qint64 fileWords = in.LittleEndian32();
    const bool isWhole = start + fileWords * 2 <= bytes.size() || bytes.endsWith(endRecord);
    return hasHeader && !in.IsPastEnd() && isWhole;
}

/// Text whose first element is the drawing, or gzipped text.
bool IsSvg(QByteArrayView bytes)
{
    constexpr qsizetype maxPreamble = 4096;
    const QByteArray start = bytes.first(qMin(bytes.size(), maxPreamble)).toByteArray();
    const QByteArray text = (start.startsWith("\xEF\xBB\xBF") ? start.sliced(3) : start).trimmed();
    return start.startsWith("\x1F\x8B") || (text.startsWith('<') && text.contains("<svg"));
}

/// The EXIF data of a PNG or WebP file; empty if there is none.
QByteArrayView ChunkData(QByteArrayView bytes, PictureFormat format)
{
    constexpr qint64 pngChunks = 8;
    constexpr qint64 webPChunks = 12;
    const bool isPng = format == PictureFormat::Png;
    Scanner in(bytes);
    in.MoveTo(isPng ? pngChunks : webPChunks);
    while (!in.IsAtEnd()) {
        const auto bigEndian32 = [&in] { return quint32{in.BigEndian16()} << 16 | in.BigEndian16(); };
        const qint64 pngSize = isPng ? bigEndian32() : 0;
        const qint64 name = in.At();
        in.Skip(4);
        const qint64 size = isPng ? pngSize : in.LittleEndian32();
        if (in.At() + size > bytes.size())
            break;
        if (bytes.sliced(name).startsWith(isPng ? "eXIf" : "EXIF"))
            return bytes.sliced(in.At(), size);
        in.Skip(isPng ? size + 4 : size + size % 2); // a checksum, a byte to an even size
    }
    return {};
}

} // namespace

std::optional<QSize> PlaceableWmfSize(QByteArrayView bytes)
{
    constexpr quint32 placeable = 0x9AC6CDD7;
    constexpr int pixelsPerInch = 96;
    Scanner in(bytes);
    if (in.LittleEndian32() != placeable)
        return std::nullopt;
    in.LittleEndian16(); // a handle, always 0
    const int left = static_cast<qint16>(in.LittleEndian16());
    const int top = static_cast<qint16>(in.LittleEndian16());
    const int right = static_cast<qint16>(in.LittleEndian16());
    const int bottom = static_cast<qint16>(in.LittleEndian16());
    const int unitsPerInch = qMax(1, int{in.LittleEndian16()});
    const auto pixels = [&](int units) {
        return qMax(1, (qAbs(units) * pixelsPerInch + unitsPerInch / 2) / unitsPerInch);
    };
    return QSize(pixels(right - left), pixels(bottom - top));
}

const QStringList& PictureSuffixes()
{
    static const QStringList suffixes = {"png", "jpg",  "jpeg", "jfif", "webp", "heic", "heif", "avif",
                                         "tif", "tiff", "svg",  "svgz", "bmp",  "gif",  "wmf"};
    return suffixes;
}

PictureFormat FormatOf(QByteArrayView bytes)
{
    if (bytes.startsWith("BM"))
        return IsWholeBmp(bytes) ? PictureFormat::Bmp : PictureFormat::Unknown;
    if (bytes.startsWith("\xFF\xD8"))
        return IsWholeJpeg(bytes) ? PictureFormat::Jpeg : PictureFormat::Unknown;
    if (bytes.startsWith("GIF8"))
        return IsWholeGif(bytes) ? PictureFormat::Gif : PictureFormat::Unknown;
    if (bytes.startsWith("\x89PNG"))
        return PictureFormat::Png;
    if (bytes.startsWith("RIFF") && bytes.sliced(8).startsWith("WEBP"))
        return PictureFormat::WebP;
    if (bytes.startsWith(QByteArrayView("II*\0", 4)) || bytes.startsWith(QByteArrayView("MM\0*", 4)))
        return PictureFormat::Tiff;
    if (bytes.sliced(qMin<qsizetype>(4, bytes.size())).startsWith("ftyp"))
        return PictureFormat::Heif;
    if (IsSvg(bytes))
        return PictureFormat::Svg;
    return IsWholeWmf(bytes) ? PictureFormat::Wmf : PictureFormat::Unknown;
}

QImageIOHandler::Transformations OrientationOf(QByteArrayView bytes, PictureFormat format)
{
    QByteArray exif("Exif\0\0", 6); // the library expects the prefix that JPEG files have
    exif += ChunkData(bytes, format).toByteArray();
    const Owned<ExifData> data(exif_data_new_from_data(reinterpret_cast<const uchar*>(exif.constData()),
                                                       static_cast<uint>(exif.size())),
                               exif_data_unref);
    const ExifEntry* const entry =
        data == nullptr ? nullptr : exif_data_get_entry(data, EXIF_TAG_ORIENTATION);
    if (entry == nullptr || entry->format != EXIF_FORMAT_SHORT)
        return QImageIOHandler::TransformationNone;
    using enum QImageIOHandler::Transformation;
    static constexpr QImageIOHandler::Transformation turns[] = {
        TransformationNone,     TransformationNone,
        TransformationMirror,   TransformationRotate180,
        TransformationFlip,     TransformationFlipAndRotate90,
        TransformationRotate90, TransformationMirrorAndRotate90,
        TransformationRotate270};
    const auto number = exif_get_short(entry->data, exif_data_get_byte_order(data.get()));
    return number < std::size(turns) ? turns[number] : TransformationNone;
}

} // namespace deckforge
