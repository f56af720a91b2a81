#include "BuildPaths.h"
#include "imaging/GifWriter.h"
#include "imaging/PictureFormats.h"
#include "imaging/PictureLoader.h"
#include "imaging/mIntelJPEGLibrary.h"
#include "support/TestFolder.h"

#include <QBuffer>
#include <QDirIterator>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>

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

/// A placeable metafile with one black rectangle in its left half: 96 x 48 units of 1/96 inch.
QByteArray Metafile()
{
    QByteArray bytes;
    const auto words = [&](std::initializer_list<int> values) {
        for (const int value : values) {
            const quint16 little = qToLittleEndian(static_cast<quint16>(value));
            bytes.append(reinterpret_cast<const char*>(&little), 2);
        }
    };
    words({0xCDD7, 0x9AC6, 0, 0, 0, 96, 48, 96, 0, 0});
    int checksum = 0;
    for (qsizetype i = 0; i < bytes.size(); i += 2)
        checksum ^= qFromLittleEndian<quint16>(bytes.constData() + i);
    words({checksum});
    const int recordWords = 5 + 5 + 7 + 4 + 7 + 3;
    words({1, 9, 0x0300, 9 + recordWords, 0, 1, 7, 0, 0});
    words({5, 0, 0x020B, 0, 0});         // window origin
    words({5, 0, 0x020C, 48, 96});       // window extent
    words({7, 0, 0x02FC, 0, 0, 0, 0});   // black brush
    words({4, 0, 0x012D, 0});            // select it
    words({7, 0, 0x041B, 48, 48, 0, 0}); // rectangle
    words({3, 0, 0});                    // end
    return bytes;
}

// Pictures of a few pixels that keep a decoder busy for as long as they have bytes.

/// Each code stands for the one before and a pixel more, up to thousands.
QByteArray GifOfOnePixelAndMillions()
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
    for (int code = 258; code < 4096; ++code) {
        put(code, size);
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

QByteArray JpegOfManyScans()
{
    QByteArray bytes = Encoded("JPEG");
    const QByteArray scan = bytes.sliced(bytes.indexOf("\xFF\xDA")).chopped(2);
    bytes.insert(bytes.size() - 2, scan.repeated(99));
    return bytes;
}

QByteArray BmpOfManyEmptyRows()
{
    QByteArray bytes = Encoded("BMP");
    bytes[28] = 8; // bits, run-length encoded
    bytes[30] = 1;
    return bytes.append(1 << 22, 0);
}

} // namespace

class PictureFiles : public testing::Test {
protected:
    Picture Load(const QString& path) { return Loader.LoadPicture(path); }
    int FailureOfLoading(const QString& path)
    {
        return FailureOf([&] { (void)Load(path); });
    }
    QByteArray EncodedGif() const
    {
        const QString bmp = Folder.WritePicture("source.bmp", PictureOfPlaces({Width, Height}));
        EXPECT_EQ(ConvertBmpToGif(bmp, Folder.Path("made.gif")), std::nullopt);
        return Folder.Read("made.gif");
    }
    static void SetTime(const QString& path, const QDateTime& time)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    TestFolder Folder;
    PictureLoader Loader;
};

TEST_F(PictureFiles, DecodesAllFourFormatsAtTheirNaturalSize)
{
    const auto load = [&](const char* name, const QByteArray& bytes) {
        return Load(Folder.Write(name, bytes));
    };
    // The content tells the format, whatever the name.
    EXPECT_EQ(load("a.jpg", Encoded("BMP")).Pixels(), PictureOfPlaces({Width, Height}).Pixels());
    EXPECT_EQ(load("b.bmp", Encoded("JPEG")).Size(), QSize(Width, Height));
    EXPECT_EQ(load("c.gif", EncodedGif()).Size(), QSize(Width, Height));
    const Picture metafile = load("d.wmf", Metafile());
    EXPECT_EQ(metafile.Size(), QSize(96, 48));
    EXPECT_LT(qGray(metafile.Pixels().pixel(20, 24)), 30);
    EXPECT_TRUE(Load("").IsEmpty());
}

TEST_F(PictureFiles, TakesTheFormsThatEachFormatHas)
{
    // Compressed, progressive, interlaced, with old headers, bit fields, four colours, several pictures.
    for (const QString format : {"bmp", "jpeg", "gif", "wmf"}) {
        QDirIterator seeds(DECKFORGE_SOURCE_DIR "/fuzz/corpus/" + format, QDir::Files);
        EXPECT_TRUE(seeds.hasNext()) << format.toStdString();
        while (seeds.hasNext()) {
            const QString path = seeds.next();
            EXPECT_NO_THROW(EXPECT_FALSE(DecodePicture(path).IsEmpty())) << path.toStdString();
        }
    }
}

TEST_F(PictureFiles, RefusesWhatIsCutDamagedTooLargeOrNoPicture)
{
    const auto failure = [&](const QByteArray& bytes) {
        return FailureOfLoading(Folder.Write("picture", bytes));
    };
    for (const QByteArray& whole : {Encoded("BMP"), Encoded("JPEG"), EncodedGif(), Metafile()}) {
        for (const qsizetype cut : {qsizetype(3), qsizetype(20), whole.size() / 2, whole.size() - 3})
            EXPECT_EQ(failure(whole.first(cut)), 481) << whole.first(2).toStdString() << " cut at " << cut;
    }
    EXPECT_EQ(failure("no picture at all"), 481);
    EXPECT_EQ(failure(QByteArray()), 481);
    EXPECT_EQ(failure(Encoded("PNG")), 481) << "of another kind";
    QByteArray huge = Encoded("BMP");
    qToLittleEndian<qint32>(30000, huge.data() + 18);
    qToLittleEndian<qint32>(30000, huge.data() + 22);
    EXPECT_EQ(failure(huge), 481);
    qToLittleEndian<qint32>(0x7FFFFFFF, huge.data() + 18);
    qToLittleEndian<qint32>(-0x7FFFFFFF, huge.data() + 22);
    qToLittleEndian<qint16>(-1, huge.data() + 28);
    EXPECT_EQ(failure(huge), 481) << "measures whose product no number holds";
    for (const QByteArray& endless : {GifOfOnePixelAndMillions(), JpegOfManyScans(), BmpOfManyEmptyRows()})
        EXPECT_EQ(failure(endless), 481) << endless.first(2).toStdString();
    QByteArray hugeMetafile = Metafile();
    qToLittleEndian<qint16>(30000, hugeMetafile.data() + 10);
    qToLittleEndian<qint16>(30000, hugeMetafile.data() + 12);
    EXPECT_EQ(failure(hugeMetafile), 481);
    EXPECT_EQ(FailureOfLoading(Folder.Path("none.bmp")), 53);
    EXPECT_EQ(FailureOfLoading(Folder.Path("none/a.bmp")), 76);
    EXPECT_EQ(FailureOfLoading(Folder.Path()), 75);
}

TEST_F(PictureFiles, ReadsAFileAgainWhenItHasChanged)
{
    const QString path = Folder.WritePicture("a.bmp", PictureOf({"rr"}));
    EXPECT_EQ(RowsOf(Load(path)), PixelRows{"rr"});
    SavePicture(PictureOf({"gg"}), path);
    SetTime(path, QDateTime::currentDateTime().addSecs(60));
    EXPECT_EQ(RowsOf(Load(path)), PixelRows{"gg"});
    QFile::remove(path);
    EXPECT_EQ(FailureOfLoading(path), 53);
}

TEST_F(PictureFiles, AreWrittenWithTwentyFourBitsAtTheResolutionOfTheScale)
{
    PictureBox surface(QSize(5, 4), 4);
    const QImage read(Folder.WritePicture("a.bmp", surface.Image()));
    EXPECT_EQ(read.size(), QSize(20, 16));
    EXPECT_EQ(read.dotsPerMeterX(), 15118) << "96 logical pixels to the inch";
    EXPECT_EQ(qFromLittleEndian<quint16>(Folder.Read("a.bmp").constData() + 28), 24);
    EXPECT_EQ(FailureOf([&] { SavePicture(Picture(), Folder.Path("b.bmp")); }), 481);
}

TEST_F(PictureFiles, AJpgKeepsTheTimesOfTheFileThatItReplaces)
{
    cDIBSection surface;
    surface.CreateFromPicture(PictureOfPlaces({153, 40}));
    const QString path = Folder.Write("card.jpg", "an older image");
    const QDateTime old = QDateTime::fromSecsSinceEpoch(1000000000);
    SetTime(path, old);
    EXPECT_TRUE(SaveJPG(surface, path, 90));
    EXPECT_EQ(QFileInfo(path).lastModified(), old);
    const QImage read(path);
    ASSERT_EQ(read.size(), QSize(153, 40)) << "rows with padding";
    EXPECT_NEAR(qGreen(read.pixel(76, 0)), 0, 12) << "the top row is at the top";
    EXPECT_NEAR(qGreen(read.pixel(76, 39)), 39, 12);
    EXPECT_EQ(FailureOf([&] { SaveJPG(surface, Folder.Path(), 90); }), 75);
    EXPECT_EQ(FailureOf([&] { SaveJPG(cDIBSection(), Folder.Path("b.jpg"), 90); }), 26001);
}

TEST_F(PictureFiles, AGifKeepsTheColoursOfAPictureWithFewAndTellsWhatFails)
{
    const PixelRows rows = {"rgb", "#.#"};
    const QString bmp = Folder.WritePicture("a.bmp", PictureOf(rows));
    const QString gif = Folder.Path("a.gif");
    EXPECT_EQ(ConvertBmpToGif(bmp, gif), std::nullopt);
    EXPECT_EQ(RowsOf(DecodePicture(gif)), rows);
    SavePicture(PictureOf({".."}), bmp);
    EXPECT_EQ(ConvertBmpToGif(bmp, gif), std::nullopt) << "a single colour";
    EXPECT_EQ(RowsOf(DecodePicture(gif)), PixelRows{".."});
    EXPECT_EQ(ConvertBmpToGif(Folder.Path("none.bmp"), gif), "File not found");
    EXPECT_EQ(ConvertBmpToGif(bmp, Folder.Path("none/a.gif")), "Path not found");
}

} // namespace deckforge
