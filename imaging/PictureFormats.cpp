#include "imaging/PictureFormats.h"

#include <QtGlobal>
#include <array>

namespace deckforge {

namespace {

constexpr qint64 PlaceableHeaderBytes = 22;

/// Decoders go through all that a file holds, also past the end of its picture. So many pixels or bytes may
/// stand there.
constexpr qint64 Slack = qint64(1) << 20;

/// Reads numbers from a file image; past its end everything is 0 and IsPastEnd() tells so.
class Scanner {
public:
    explicit Scanner(QByteArrayView bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool IsPastEnd() const { return m_at > m_bytes.size(); }
    [[nodiscard]] bool IsAtEnd() const { return m_at >= m_bytes.size(); }
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

/// Rows of pixels run from the offset in the header to the end; compressed ones say how long they are.
bool IsWholeBmp(QByteArrayView bytes)
{
    constexpr qint64 offsetField = 10;
    constexpr quint32 uncompressed = 0;
    constexpr quint32 bitFields = 3;
    Scanner in(bytes);
    in.MoveTo(offsetField);
    const qint64 offset = in.LittleEndian32();
    const quint32 headerSize = in.LittleEndian32();
    constexpr quint32 oldHeader = 12; // with 16-bit measures, never compressed
    const bool isOld = headerSize == oldHeader;
    const qint64 width = isOld ? in.LittleEndian16() : static_cast<qint32>(in.LittleEndian32());
    const qint64 height = isOld ? in.LittleEndian16() : static_cast<qint32>(in.LittleEndian32());
    in.LittleEndian16(); // planes
    const qint64 bits = in.LittleEndian16();
    const quint32 compression = isOld ? uncompressed : in.LittleEndian32();
    const qint64 imageSize = isOld ? 0 : in.LittleEndian32();
    constexpr qint64 mostPixels = 1 << 20; // along one side, far more than could be decoded
    constexpr qint64 mostBits = 32;
    if (in.IsPastEnd() || width <= 0 || width > mostPixels || qAbs(height) > mostPixels || bits > mostBits)
        return false;
    const bool hasRows = compression == uncompressed || compression == bitFields;
    const qint64 rowBytes = (width * bits + 31) / 32 * 4;
    // Compressed, a pixel takes two bytes at most, and so does the end of a row.
    const qint64 mostCompressed = 2 * (width + 1) * qAbs(height) + Slack;
    if (!hasRows && bytes.size() - offset > mostCompressed)
        return false;
    return offset + (hasRows ? rowBytes * qAbs(height) : imageSize) <= bytes.size();
}

/// Segments with their lengths up to the compressed data, which ends at the next marker that is no restart. A
/// scan of some bytes can go over all of the picture once more: encoders make a dozen of them.
bool IsWholeJpeg(QByteArrayView bytes)
{
    constexpr quint8 markerStart = 0xFF;
    constexpr quint8 endOfImage = 0xD9;
    constexpr quint8 startOfScan = 0xDA;
    constexpr int mostScans = 64;
    const auto isRestart = [](quint8 marker) { return marker >= 0xD0 && marker <= 0xD7; };
    Scanner in(bytes);
    in.Skip(2);
    bool inScan = false;
    int scans = 0;
    while (!in.IsAtEnd()) {
        if (in.Byte() != markerStart) {
            if (!inScan)
                return false;
            continue;
        }
        quint8 marker = in.Byte();
        while (marker == markerStart && !in.IsAtEnd())
            marker = in.Byte(); // fill bytes
        if (marker == endOfImage)
            return scans > 0 && !in.IsPastEnd();
        if (inScan && (marker == 0 || isRestart(marker)))
            continue;
        inScan = marker == startOfScan;
        if (inScan && ++scans > mostScans)
            return false;
        const quint16 length = in.BigEndian16();
        in.Skip(length - 2);
    }
    return false;
}

void SkipGifColours(Scanner& in, quint8 flags)
{
    constexpr quint8 hasColours = 0x80;
    constexpr quint8 sizeBits = 0x07;
    if (flags & hasColours)
        in.Skip(3 << ((flags & sizeBits) + 1));
}

/// Sub-blocks, each behind its length, up to one of length 0.
bool SkipGifBlocks(Scanner& in)
{
    while (!in.IsAtEnd()) {
        const quint8 length = in.Byte();
        if (length == 0)
            return true;
        in.Skip(length);
    }
    return false;
}

/// The compressed codes of a picture, taken byte by byte only to count the pixels that they stand for: twelve
/// bits can stand for four thousand.
class GifCodes {
public:
    explicit GifCodes(int pixelBits) : m_pixelBits(pixelBits), m_clear(1 << pixelBits) { Clear(); }

    [[nodiscard]] qint64 Pixels() const { return m_pixels; }

    void Take(quint8 byte)
    {
        m_bits |= quint32{byte} << m_bitCount;
        m_bitCount += 8;
        while (m_bitCount >= m_codeBits && !m_isAtEnd) {
            const auto code = static_cast<int>(m_bits & ((1U << m_codeBits) - 1));
            m_bits >>= m_codeBits;
            m_bitCount -= m_codeBits;
            TakeCode(code);
        }
        if (m_isAtEnd)
            m_bitCount = 0;
    }

private:
    static constexpr int MostCodeBits = 12;
    static constexpr int LongestCode = 2 << MostCodeBits; ///< decoders give up there

    void Clear()
    {
        m_next = m_clear + 2;
        m_codeBits = m_pixelBits + 1;
        m_lastLength = 0;
    }

    /// A code stands for a pixel, or for what the one before stood for when it was made, and a pixel more.
    /// One that the codes before do not explain is taken for the next, and what is made of it for the
    /// longest.
    void TakeCode(int code)
    {
        const int end = m_clear + 1;
        if (code == m_clear || code == end) {
            m_isAtEnd = code == end;
            Clear();
            return;
        }
        const int added = m_lastLength + 1;
        const bool isExplained = code < m_clear || (m_lastLength > 0 && code <= m_next);
        int length = added;
        if (code < m_clear)
            length = 1;
        else if (code < m_next)
            length = m_lengths[static_cast<std::size_t>(code)];
        if (m_lastLength > 0 && m_next < 1 << MostCodeBits) {
            m_lengths[static_cast<std::size_t>(m_next++)] = static_cast<quint16>(added);
            if (m_next >= 1 << m_codeBits && m_codeBits < MostCodeBits)
                ++m_codeBits;
        }
        m_lastLength = isExplained ? length : LongestCode;
        m_pixels += length;
    }

    int m_pixelBits;
    int m_clear; ///< the code that begins anew; the next one ends
    int m_next = 0;
    int m_codeBits = 0;
    int m_lastLength = 0;
    bool m_isAtEnd = false;
    std::array<quint16, 1 << MostCodeBits> m_lengths = {};
    quint32 m_bits = 0;
    int m_bitCount = 0;
    qint64 m_pixels = 0;
};

/// The codes of a picture, to the end of their sub-blocks.
bool SkipGifPicture(Scanner& in, qint64 pixels)
{
    constexpr int mostPixelBits = 8;
    const int pixelBits = in.Byte();
    if (pixelBits > mostPixelBits)
        return false;
    const qint64 most = qMin(pixels, MostDecodedBytes / DecodedPixelBytes) + Slack;
    GifCodes codes(pixelBits);
    while (!in.IsAtEnd()) {
        const int length = in.Byte();
        if (length == 0)
            return true;
        for (int i = 0; i < length; ++i)
            codes.Take(in.Byte());
        if (codes.Pixels() > most)
            return false;
    }
    return false;
}

/// The first picture must be there to its end; what follows is not shown.
bool IsWholeGif(QByteArrayView bytes)
{
    constexpr quint8 extension = 0x21;
    constexpr quint8 picture = 0x2C;
    Scanner in(bytes);
    in.Skip(10); // signature and measures
    const quint8 flags = in.Byte();
    in.Skip(2); // background and aspect
    SkipGifColours(in, flags);
    while (!in.IsAtEnd()) {
        const quint8 block = in.Byte();
        if (block == extension) {
            in.Byte(); // its label
            if (!SkipGifBlocks(in))
                return false;
        } else if (block == picture) {
            in.Skip(4); // place
            const qint64 width = in.LittleEndian16();
            const qint64 height = in.LittleEndian16();
            SkipGifColours(in, in.Byte());
            return SkipGifPicture(in, width * height);
        } else {
            return false;
        }
    }
    return false;
}

/// A header that tells its own length and the file's, behind the one of a placeable file where there is one.
bool IsWholeWmf(QByteArrayView bytes)
{
    constexpr quint16 headerWords = 9;
    const qint64 start = PlaceableWmfSize(bytes) ? PlaceableHeaderBytes : 0;
    Scanner in(bytes);
    in.MoveTo(start);
    const quint16 type = in.LittleEndian16();
    const bool hasHeader = (type == 1 || type == 2) && in.LittleEndian16() == headerWords;
    in.LittleEndian16(); // version
    const qint64 fileWords = in.LittleEndian32();
    return hasHeader && !in.IsPastEnd() && start + fileWords * 2 <= bytes.size();
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

PictureFormat FormatOf(QByteArrayView bytes)
{
    if (bytes.startsWith("BM"))
        return IsWholeBmp(bytes) ? PictureFormat::Bmp : PictureFormat::Unknown;
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return IsWholeJpeg(bytes) ? PictureFormat::Jpeg : PictureFormat::Unknown;
    if (bytes.startsWith("GIF8"))
        return IsWholeGif(bytes) ? PictureFormat::Gif : PictureFormat::Unknown;
    return IsWholeWmf(bytes) ? PictureFormat::Wmf : PictureFormat::Unknown;
}

} // namespace deckforge
