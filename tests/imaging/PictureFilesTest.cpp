#include "imaging/GifWriter.h"
#include "imaging/PictureFormats.h"
#include "imaging/PictureLoader.h"
#include "imaging/mIntelJPEGLibrary.h"
#include "support/Failures.h"
#include "support/PixelText.h"
#include "support/TestFolder.h"

#include <QBuffer>
#include <QDir>
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

QByteArray EncodedGif(const TestFolder& folder)
{
    const QString bmp = folder.Path(QStringLiteral("source.bmp"));
    SavePicture(PictureOfPlaces({Width, Height}), bmp);
    EXPECT_EQ(ConvertBmpToGif(bmp, folder.Path(QStringLiteral("made.gif"))), std::nullopt);
    return folder.Read(QStringLiteral("made.gif"));
}

/// A placeable metafile with one black rectangle in its left half: 96 x 48 units of 1/96 inch.
QByteArray Metafile()
{
    QByteArray bytes;
    const auto word = [&](int value) {
        const quint16 little = qToLittleEndian(static_cast<quint16>(value));
        bytes.append(reinterpret_cast<const char*>(&little), 2);
    };
    const auto words = [&](std::initializer_list<int> values) {
        for (const int value : values)
            word(value);
    };
    words({0xCDD7, 0x9AC6, 0, 0, 0, 96, 48, 96, 0, 0});
    int checksum = 0;
    for (qsizetype i = 0; i < bytes.size(); i += 2)
        checksum ^= qFromLittleEndian<quint16>(bytes.constData() + i);
    word(checksum);
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

TEST(PictureLoader, DecodesAllFourFormatsAtTheirNaturalSize)
{
    const TestFolder folder;
    PictureLoader loader;
    const auto load = [&](const char* name, const QByteArray& bytes) {
        return loader.LoadPicture(folder.Write(QString::fromLatin1(name), bytes));
    };
    // The content tells the format, whatever the name.
    EXPECT_EQ(load("a.jpg", Encoded("BMP")).Pixels(), PictureOfPlaces({Width, Height}).Pixels());
    EXPECT_EQ(load("b.bmp", Encoded("JPEG")).Size(), QSize(Width, Height));
    EXPECT_EQ(load("c.gif", EncodedGif(folder)).Size(), QSize(Width, Height));
    const Picture metafile = load("d.wmf", Metafile());
    EXPECT_EQ(metafile.Size(), QSize(96, 48));
    EXPECT_LT(qGray(metafile.Pixels().pixel(20, 24)), 30);
    EXPECT_TRUE(loader.LoadPicture(QString()).IsEmpty());
}

TEST(PictureLoader, TakesTheFormsThatEachFormatHas)
{
    // Compressed, progressive, interlaced, with old headers, bit fields, four colours, several pictures.
    QDirIterator seeds(QStringLiteral(DECKFORGE_SOURCE_DIR "/fuzz/corpus"), QDir::Files,
                       QDirIterator::Subdirectories);
    while (seeds.hasNext()) {
        const QString path = seeds.next();
        const QString folder = seeds.fileInfo().dir().dirName();
        if (folder == QLatin1String("set") || folder == QLatin1String("text"))
            continue;
        EXPECT_NO_THROW(EXPECT_FALSE(DecodePicture(path).IsEmpty())) << path.toStdString();
    }
}

TEST(PictureLoader, RefusesWhatIsCutDamagedTooLargeOrNoPicture)
{
    const TestFolder folder;
    PictureLoader loader;
    const auto failure = [&](const QByteArray& bytes) {
        const QString path = folder.Write(QStringLiteral("picture"), bytes);
        return FailureOf([&] { (void)loader.LoadPicture(path); });
    };
    const QByteArray gif = EncodedGif(folder);
    for (const QByteArray& whole : {Encoded("BMP"), Encoded("JPEG"), gif, Metafile()}) {
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
    EXPECT_EQ(FailureOf([&] { (void)loader.LoadPicture(folder.Path(QStringLiteral("none.bmp"))); }), 53);
    EXPECT_EQ(FailureOf([&] { (void)loader.LoadPicture(folder.Path(QStringLiteral("none/a.bmp"))); }), 76);
    EXPECT_EQ(FailureOf([&] { (void)loader.LoadPicture(folder.Path()); }), 75);
}

TEST(PictureLoader, ReadsAFileAgainWhenItHasChanged)
{
    const TestFolder folder;
    PictureLoader loader;
    const QString path = folder.Path(QStringLiteral("a.bmp"));
    SavePicture(PictureOf({"rr"}), path);
    EXPECT_EQ(RowsOf(loader.LoadPicture(path)), PixelRows{"rr"});
    SavePicture(PictureOf({"gg"}), path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime);
    file.close();
    EXPECT_EQ(RowsOf(loader.LoadPicture(path)), PixelRows{"gg"});
    QFile::remove(path);
    EXPECT_EQ(FailureOf([&] { (void)loader.LoadPicture(path); }), 53);
}

TEST(SavePicture, WritesTwentyFourBitsAtTheResolutionOfTheScale)
{
    const TestFolder folder;
    PictureBox surface(QSize(5, 4), 4);
    SavePicture(surface.Image(), folder.Path(QStringLiteral("a.bmp")));
    const QImage read(folder.Path(QStringLiteral("a.bmp")));
    EXPECT_EQ(read.size(), QSize(20, 16));
    EXPECT_EQ(read.dotsPerMeterX(), 15118) << "96 logical pixels to the inch";
    EXPECT_EQ(qFromLittleEndian<quint16>(folder.Read(QStringLiteral("a.bmp")).constData() + 28), 24);
    EXPECT_EQ(FailureOf([&] { SavePicture(Picture(), folder.Path(QStringLiteral("b.bmp"))); }), 481);
}

TEST(SaveJPG, KeepsTheTimesOfTheFileThatItReplaces)
{
    const TestFolder folder;
    cDIBSection surface;
    surface.CreateFromPicture(PictureOfPlaces({153, 40}));
    const QString path = folder.Write(QStringLiteral("card.jpg"), "an older image");
    const QDateTime old = QDateTime::fromSecsSinceEpoch(1000000000);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(old, QFileDevice::FileModificationTime));
    file.close();
    EXPECT_TRUE(SaveJPG(surface, path, 90));
    EXPECT_EQ(QFileInfo(path).lastModified(), old);
    const QImage read(path);
    ASSERT_EQ(read.size(), QSize(153, 40)) << "rows with padding";
    EXPECT_NEAR(qGreen(read.pixel(76, 0)), 0, 12) << "the top row is at the top";
    EXPECT_NEAR(qGreen(read.pixel(76, 39)), 39, 12);
    EXPECT_EQ(FailureOf([&] { SaveJPG(surface, folder.Path(), 90); }), 75);
    EXPECT_EQ(FailureOf([&] { SaveJPG(cDIBSection(), folder.Path(QStringLiteral("b.jpg")), 90); }), 26001);
}

TEST(GifWriter, KeepsTheColoursOfAPictureWithFewAndTellsWhatFails)
{
    const TestFolder folder;
    const QString bmp = folder.Path(QStringLiteral("a.bmp"));
    const QString gif = folder.Path(QStringLiteral("a.gif"));
    const PixelRows rows = {"rgb", "#.#"};
    SavePicture(PictureOf(rows), bmp);
    EXPECT_EQ(ConvertBmpToGif(bmp, gif), std::nullopt);
    EXPECT_EQ(RowsOf(DecodePicture(gif)), rows);
    SavePicture(PictureOf({".."}), bmp);
    EXPECT_EQ(ConvertBmpToGif(bmp, gif), std::nullopt) << "a single colour";
    EXPECT_EQ(RowsOf(DecodePicture(gif)), PixelRows{".."});
    EXPECT_EQ(ConvertBmpToGif(folder.Path(QStringLiteral("none.bmp")), gif),
              QStringLiteral("File not found"));
    EXPECT_EQ(ConvertBmpToGif(bmp, folder.Path(QStringLiteral("none/a.gif"))),
              QStringLiteral("Path not found"));
}

} // namespace deckforge
