// SPDX-License-Identifier: GPL-3.0-or-later

#include "BuildPaths.h"
#include "imaging/GifWriter.h"
#include "imaging/PictureBox.h"
#include "imaging/PictureFormats.h"
#include "imaging/PictureLoader.h"
#include "support/FileBytes.h"
#include "support/TestFolder.h"

#include <QBuffer>
#include <QDirIterator>
#include <QScopeGuard>

namespace deckforge {

namespace {

constexpr int Width = 33; // odd, so that rows have padding
constexpr int Height = 20;

QByteArray Encoded(const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(PictureOfPlaces({Width, Height}).Pixels().save(&buffer, format));
    return bytes;
}

/// A file of the fuzzer's seed corpus.
QByteArray Seed(const QString& name)
{
    QFile file(DECKFORGE_SOURCE_DIR "/fuzz/corpus/" + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

QByteArray Words(std::initializer_list<int> values)
{
    QByteArray bytes;
    for (const int value : values) {
        const quint16 little = qToLittleEndian(static_cast<quint16>(value));
        bytes.append(reinterpret_cast<const char*>(&little), 2);
    }
    return bytes;
}

template <class Number>
QByteArray With(QByteArray bytes, qsizetype at, Number number)
{
    qToLittleEndian(number, bytes.data() + at);
    return bytes;
}

QByteArray PlaceableHeader(int left, int top, int right, int bottom, int unitsPerInch)
{
    QByteArray header = Words({0xCDD7, 0x9AC6, 0, left, top, right, bottom, unitsPerInch, 0, 0});
    int checksum = 0;
    for (qsizetype i = 0; i < header.size(); i += 2)
        checksum ^= LittleEndian<quint16>(header, i);
    return header + Words({checksum});
}

/// A placeable metafile of 96 x 48 units of 1/96 inch, with a black left half. The converter scales the
/// drawing to fill the picture, so a black dot in the lower right corner sets its extent.
QByteArray Metafile()
{
    const int recordWords = 5 + 5 + 7 + 4 + 7 + 7 + 3;
    return PlaceableHeader(0, 0, 96, 48, 96) + Words({1, 9, 0x0300, 9 + recordWords, 0, 1, 7, 0, 0}) +
           Words({5, 0, 0x020B, 0, 0}) +                             // window origin
           Words({5, 0, 0x020C, 48, 96}) +                           // window extent
           Words({7, 0, 0x02FC, 0, 0, 0, 0}) +                       // black brush
           Words({4, 0, 0x012D, 0}) +                                // select it
           Words({7, 0, 0x041B, 48, 48, 0, 0}) +                     // rectangle
           Words({7, 0, 0x041B, 48, 96, 47, 95}) + Words({3, 0, 0}); // end
}

/// A BMP with 32-bit pixels and custom masks; all pixels have full red, half green and no blue.
QByteArray BmpWithMasks(quint32 red, quint32 green, quint32 blue, quint32 pixel)
{
    QByteArray bmp = With<qint16>(With<qint32>(Encoded("BMP"), 30, 3), 28, 32).first(54);
    for (const quint32 number : {red, green, blue})
        bmp += With<quint32>(QByteArray(4, 0), 0, number);
    bmp += With<quint32>(QByteArray(4, 0), 0, pixel).repeated(Width * Height);
    return With<quint32>(bmp, 10, 54 + 12);
}

// Small pictures whose decoding time grows with the size of the file.

/// A GIF of 1 x 1 pixels with this many bytes of codes. Each code is for one pixel more than the one
/// before, up to thousands.
QByteArray GifOfOnePixel(qsizetype codeBytes)
{
    QByteArray codes;
    quint32 bits = 0;
    int bitCount = 0;
    const auto put = [&](int code, int size) {
        bits |= static_cast<quint32>(code) << bitCount;
        for (bitCount += size; bitCount >= 8; bitCount -= 8, bits >>= 8)
            codes += static_cast<char>(bits);
    };
    int size = 9;
    put(0, size);
    for (int code = 258; codes.size() < codeBytes; ++code) {
        put(qMin(code, 4095), size);
        if (code + 1 == 1 << size && size < 12)
            ++size;
    }
    QByteArray bytes("GIF89a\1\0\1\0\x80\0\0\0\0\0\xFF\xFF\xFF,\0\0\0\0\1\0\1\0\0\x08", 30);
    for (qsizetype at = 0; at < codes.size(); at += 255) {
        const QByteArray block = codes.mid(at, 255);
        bytes += static_cast<char>(block.size()) + block;
    }
    return bytes.append("\0;", 2);
}

/// A progressive JPEG whose last scan is repeated until there are this many.
QByteArray JpegOfScans(int count)
{
    QByteArray bytes = Seed("jpeg/progressive");
    const QByteArray last = bytes.sliced(bytes.lastIndexOf("\xFF\xDA")).chopped(2);
    bytes.insert(bytes.size() - 2, last.repeated(count - static_cast<int>(bytes.count("\xFF\xDA"))));
    return bytes;
}

} // namespace

class PictureFiles : public testing::Test {
protected:
    Picture Load(const QString& path) { return Loader.LoadPicture(path); }
    int FailureOfLoading(const QString& path)
    {
        return FailureOf([&] { (void)Load(path); });
    }
    Picture Decode(const QByteArray& bytes) { return DecodePicture(Folder.Write("picture", bytes)); }
    int FailureOfDecoding(const QByteArray& bytes)
    {
        return FailureOf([&] { (void)Decode(bytes); });
    }
    QString ReasonOf(const QString& path)
    {
        try {
            (void)Load(path);
        } catch (const RunTimeError& error) {
            return error.Description();
        }
        return {};
    }
    QByteArray EncodedGif() const
    {
        const QString bmp = Folder.WritePicture("source.bmp", PictureOfPlaces({Width, Height}));
        EXPECT_EQ(ConvertBmpToGif(bmp, Folder.Path("made.gif")), std::nullopt);
        return Folder.Read("made.gif");
    }

    TestFolder Folder;
    PictureLoader Loader;
};

TEST_F(PictureFiles, TheContentDecidesTheFormatNotTheName)
{
    EXPECT_TRUE(Load("").IsEmpty());
    EXPECT_EQ(Load(Folder.Write("a.jpg", Encoded("BMP"))).Pixels(),
              PictureOfPlaces({Width, Height}).Pixels());
    EXPECT_EQ(Load(Folder.Write("b.bmp", Encoded("JPEG"))).Size(), QSize(Width, Height));
    EXPECT_EQ(Load(Folder.Write("c.wmf", EncodedGif())).Size(), QSize(Width, Height));
    EXPECT_EQ(Load(Folder.Write("d.gif", Metafile())).Size(), QSize(96, 48));
}

TEST_F(PictureFiles, ReadsTheVariantsOfEachFormat)
{
    // Compressed, progressive, interlaced, with old headers, bit fields, four colours, several pictures.
    for (const QString format : {"bmp", "jpeg", "gif", "wmf", "png", "webp", "tiff", "svg", "heif"}) {
        QDirIterator seeds(DECKFORGE_SOURCE_DIR "/fuzz/corpus/" + format, QDir::Files);
        EXPECT_TRUE(seeds.hasNext()) << format.toStdString();
        while (seeds.hasNext()) {
            const QString path = seeds.next();
            EXPECT_NO_THROW(EXPECT_FALSE(DecodePicture(path).IsEmpty())) << path.toStdString();
        }
    }
}

TEST_F(PictureFiles, InvalidFilesAreRejectedAndUnusualOnesRead)
{
    const QByteArray bmp = Encoded("BMP");
    const QByteArray jpeg = Encoded("JPEG");
    const QByteArray gif = EncodedGif();
    const QByteArray runs = Seed("bmp/rle8"); // its number of bytes does not follow from its size
    const QByteArray mono = Seed("gif/mono");
    const qsizetype frame = jpeg.indexOf("\xFF\xC0") + 5;
    const std::tuple<const char*, QByteArray, int> rows[] = {
        {"a text", "no picture at all", 481},
        {"nothing", "", 481},
        {"two letters", "BM", 481},
        {"an empty JPEG", "\xFF\xD8\xFF\xD9", 481},
        {"bytes behind a BMP", bmp + QByteArray(5000, 7), 0},
        {"bytes behind a JPEG", jpeg + QByteArray(5000, 7), 0},
        {"bytes behind a GIF", gif + QByteArray(5000, 7), 0},
        {"bytes behind a WMF", Metafile() + QByteArray(5000, 7), 0},
        {"a BMP past the limit", With<qint32>(With<qint32>(runs, 18, 8192), 22, 4097), 481},
        {"an endless BMP", With<qint32>(With<qint32>(runs, 18, 0x7FFFFFFF), 22, -0x7FFFFFFF), 481},
        {"a JPEG past the limit", With<quint32>(jpeg, frame, qToBigEndian<quint32>(8192 << 16 | 4097)), 481},
        {"a GIF past the limit", With<quint32>(gif, 6, 8192 << 16 | 4097), 481},
        {"a WMF past the limit", PlaceableHeader(0, 0, 8192, 4097, 96) + Metafile().sliced(22), 481},
        {"a BMP without width", With<qint32>(bmp, 18, 0), 481},
        {"a width below 0", With<qint32>(bmp, 18, -Width), 481},
        {"65,535 bits per pixel", With<qint16>(bmp, 28, -1), 481},
        {"rows past the end", With<qint32>(bmp, 10, 55), 481},
        {"some runs past the end", runs + QByteArray(2 << 18, 0), 0},
        {"too many runs past the end", runs + QByteArray(2 << 20, 0), 481},
        {"64 scans", JpegOfScans(64), 0},
        {"65 scans", JpegOfScans(65), 481},
        {"no scan", jpeg.first(jpeg.indexOf("\xFF\xDA")) + "\xFF\xD9", 481},
        {"some codes past the pixels", GifOfOnePixel(1000), 0},
        {"too many codes past the pixels", GifOfOnePixel(2000), 481},
        {"40 rows instead of 7", With<quint16>(mono, mono.indexOf(',') + 7, 40), 481}};
    for (const auto& [what, bytes, failure] : rows)
        EXPECT_EQ(FailureOfDecoding(bytes), failure) << what;
}

TEST_F(PictureFiles, TruncatedFilesAreRejected)
{
    for (const QByteArray& whole :
         {Encoded("BMP"), Encoded("JPEG"), EncodedGif(), Metafile(), Seed("bmp/rle8"), Seed("bmp/old-header"),
          Seed("bmp/fields565"), Seed("jpeg/progressive"), Seed("gif/interlaced"), Seed("wmf/plain"),
          With<quint32>(Metafile(), 28, static_cast<quint32>(Metafile().size() / 2))}) {
        for (const qsizetype cut : {qsizetype(3), qsizetype(20), whole.size() / 2, whole.size() - 3})
            EXPECT_EQ(FailureOfDecoding(whole.first(cut)), 481)
                << whole.first(20).toHex().toStdString() << " cut at " << cut;
    }
}

TEST_F(PictureFiles, AnOversizedFileIsNotRead)
{
    const QString path = Folder.Write("a.bmp", Encoded("BMP"));
    ASSERT_TRUE(QFile::resize(path, MaxDecodedBytes));
    EXPECT_EQ(FailureOfLoading(path), 0);
    ASSERT_TRUE(QFile::resize(path, MaxDecodedBytes + (2 << 20)));
    EXPECT_EQ(FailureOfLoading(path), 481);
}

TEST_F(PictureFiles, ABmpMayHaveItsRowsTopDownAndMasksOfUpToEightBits)
{
    const QByteArray bmp = With<qint32>(Encoded("BMP"), 22, -Height);
    EXPECT_EQ(Decode(bmp).Pixels(), PictureOfPlaces({Width, Height}).Pixels().mirrored());
    for (const QByteArray& masks :
         {BmpWithMasks(0xFF, 0xFF00, 0xFF0000, 0x80FF), BmpWithMasks(0xFF000000, 0xFF0000, 0xFF, 0xFF800000)})
        EXPECT_EQ(Decode(masks).Pixels().pixel(0, 0), qRgb(255, 128, 0));
}

TEST_F(PictureFiles, ABmpWithWiderMasksIsRejectedWithTheReason)
{
    const QString reason =
        "Invalid picture: the BMP file has more than 8 bits per colour. Save it with 24 bits per pixel.";
    const QByteArray cases[] = {BmpWithMasks(0x3FF00000, 0xFFC00, 0x3FF, 0),
                                BmpWithMasks(0x1FF, 0xFF0000, 0, 0), BmpWithMasks(0xFF, 0x1FF00, 0, 0),
                                BmpWithMasks(0xFF, 0xFF00, 0xFF800000, 0),
                                With<quint32>(Seed("bmp/alpha-v4"), 66, 0xFF800000)};
    for (const QByteArray& wide : cases) {
        const QString path = Folder.Write("a.bmp", wide);
        EXPECT_EQ(ReasonOf(path), reason) << wide.sliced(54, 16).toHex().toStdString();
        EXPECT_EQ(ReasonOf(path), reason) << "the second time, too";
    }
}

TEST_F(PictureFiles, AJpegMayHaveStrayBytesBetweenItsSegments)
{
    const QByteArray jpeg = Encoded("JPEG");
    const QImage clean = Decode(jpeg).Pixels();
    for (const char* stray : {"00", "1234567890", "ff", "ffffff", "ff0000", "ff01", "ffd3"}) {
        for (const qsizetype at : {qsizetype(2), jpeg.indexOf("\xFF\xC0"), jpeg.size() - 2}) {
            QByteArray bytes = jpeg;
            bytes.insert(at, QByteArray::fromHex(stray));
            EXPECT_NO_THROW(EXPECT_EQ(Decode(bytes).Pixels(), clean)) << stray << " at " << at;
        }
    }
}

TEST_F(PictureFiles, AMetafileIsDrawnAndItsSizeMayIncludeThePlaceableHeader)
{
    PictureBox surface(QSize(96, 48));
    const Picture drawn = Decode(Metafile());
    surface.PaintPicture(drawn, 0, 0);
    ExpectPixels(surface, {{20, 24, Black}, {70, 24, White}});
    const auto allWords = static_cast<quint32>(Metafile().size() / 2);
    EXPECT_EQ(Decode(With<quint32>(Metafile(), 28, allWords)).Pixels(), drawn.Pixels());
}

TEST_F(PictureFiles, AMetafileHasTheSizeOfItsPlaceableHeader)
{
    EXPECT_EQ(PlaceableWmfSize(PlaceableHeader(0, 0, 1440, 720, 1440)), QSize(96, 48));
    EXPECT_EQ(PlaceableWmfSize(PlaceableHeader(-50, -20, 50, 30, 96)), QSize(100, 50));
    EXPECT_EQ(PlaceableWmfSize(PlaceableHeader(50, 30, -50, -20, 96)), QSize(100, 50)) << "turned over";
    EXPECT_EQ(PlaceableWmfSize(PlaceableHeader(0, 0, 7, 8, 1440)), QSize(1, 1)) << "never nothing";
    EXPECT_EQ(PlaceableWmfSize(PlaceableHeader(0, 0, 22, 23, 1440)), QSize(1, 2)) << "to the nearest";
    EXPECT_EQ(PlaceableWmfSize(PlaceableHeader(0, 0, 10, 20, 0)), QSize(960, 1920)) << "without units";
    EXPECT_EQ(PlaceableWmfSize(Metafile().sliced(22)), std::nullopt);
}

TEST_F(PictureFiles, AMissingConverterIsReportedByNameAndFoundOnceInstalled)
{
    const QString path = Folder.Write("a.wmf", Metafile());
    {
        const QByteArray programs = qgetenv("PATH");
        const auto restore = qScopeGuard([&] { qputenv("PATH", programs); });
        qputenv("PATH", QFile::encodeName(Folder.Path()));
        EXPECT_EQ(ReasonOf(path),
                  "WMF pictures need the program wmf2gd, which cannot be started. Install the "
                  "package libwmf-bin.");
    }
    EXPECT_EQ(ReasonOf(path), QString());
}

TEST_F(PictureFiles, AFileIsReadOnceUntilItChanges)
{
    const QString path = Folder.Write("a.bmp", "no picture");
    EXPECT_EQ(FailureOfLoading(path), 481);
    SavePicture(PictureOf({"rr"}), path);
    const QImage first = Load(path).Pixels();
    EXPECT_EQ(Load(path).Pixels().constBits(), first.constBits());
    SavePicture(PictureOf({"gg"}), path);
    Folder.SetTime("a.bmp", QDateTime::currentDateTime().addSecs(60));
    EXPECT_EQ(RowsOf(Load(path)), PixelRows{"gg"});
    QFile::remove(path);
    EXPECT_EQ(FailureOfLoading(path), 53);
    EXPECT_EQ(FailureOfLoading(Folder.Path("none/a.bmp")), 76);
    EXPECT_EQ(FailureOfLoading(Folder.Path()), 75);
}

} // namespace deckforge
