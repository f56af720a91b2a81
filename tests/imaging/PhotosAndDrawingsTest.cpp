// SPDX-License-Identifier: GPL-3.0-or-later

#include "BuildPaths.h"
#include "imaging/PictureBox.h"
#include "imaging/PictureLoader.h"
#include "imaging/Resampling.h"
#include "support/FileBytes.h"
#include "support/TestFolder.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QtEndian>

namespace deckforge {

namespace {

using Corners = std::string; ///< letters of the colours: top left, top right, bottom left, bottom right

/// Four squares of 16 pixels, red, green, blue and white.
QImage Squares()
{
    QImage image(32, 32, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.fillRect(0, 0, 16, 16, Qt::red);
    painter.fillRect(16, 0, 16, 16, Qt::green);
    painter.fillRect(0, 16, 16, 16, Qt::blue);
    return image;
}

Corners CornersOf(const QImage& image)
{
    Corners corners;
    for (const QPoint at : {QPoint(4, 4), QPoint(28, 4), QPoint(4, 28), QPoint(28, 28)}) {
        const QColor colour = image.pixelColor(at);
        const bool isWhite = colour.red() > 200 && colour.green() > 200 && colour.blue() > 200;
        corners += isWhite ? 'w' : colour.red() > 200 ? 'r' : colour.green() > 200 ? 'g' : 'b';
    }
    return corners;
}

QByteArray Encoded(const QImage& image, const char* format, QImageIOHandler::Transformations turn = {})
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    writer.setQuality(100);
    writer.setTransformation(turn);
    EXPECT_TRUE(writer.write(image)) << format;
    return bytes;
}

template <class Number>
QByteArray BigEndian(Number number)
{
    const Number bytes = qToBigEndian(number);
    return {reinterpret_cast<const char*>(&bytes), sizeof bytes};
}

QByteArray Little(quint32 number)
{
    const quint32 bytes = qToLittleEndian(number);
    return {reinterpret_cast<const char*>(&bytes), sizeof bytes};
}

/// EXIF data with nothing but an orientation.
QByteArray Exif(int orientation)
{
    return QByteArray("II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0", 18) +
           Little(static_cast<quint32>(orientation)) + Little(0);
}

QByteArray TurnedJpeg(int orientation)
{
    const QByteArray data = QByteArray("Exif\0\0", 6) + Exif(orientation);
    return Encoded(Squares(), "JPEG")
        .insert(2, "\xFF\xE1" + BigEndian(static_cast<quint16>(data.size() + 2)) + data);
}

QByteArray TurnedPng(int orientation)
{
    constexpr qsizetype behindHeader = 33;
    const QByteArray data = Exif(orientation);
    return Encoded(Squares(), "PNG")
        .insert(behindHeader, BigEndian(static_cast<quint32>(data.size())) + "eXIf" + data + Little(0));
}

/// The simple file becomes an extended one, whose header announces EXIF data.
QByteArray TurnedWebP(int orientation)
{
    const QByteArray image = Encoded(Squares(), "WEBP").sliced(12);
    const QByteArray size = Little(31).first(3);
    const QByteArray data = Exif(orientation);
    const QByteArray chunks = "WEBPVP8X" + Little(10) + Little(8) + size + size + image + "EXIF" +
                              Little(static_cast<quint32>(data.size())) + data;
    return "RIFF" + Little(static_cast<quint32>(chunks.size())) + chunks;
}

/// Cut into a left part that is drawn and a right part that is empty, at a quarter of a pixel.
constexpr char Drawing[] = "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='4'>"
                           "<rect width='5.25' height='4' fill='black'/></svg>";

QImage Filled(QSize size, Qt::GlobalColor colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

} // namespace

class Photos : public testing::Test {
protected:
    QImage Decode(const QByteArray& bytes) { return DecodePicture(Folder.Write("picture", bytes)).Pixels(); }

    /// The colour of the middle of a picture on a surface of that scale.
    static Colour Drawn(const Picture& picture, int scale)
    {
        PictureBox surface(picture.Size(), scale);
        surface.PaintPicture(picture, 0, 0);
        return surface.GetPixel(picture.Size().width() / 2, picture.Size().height() / 2);
    }

    TestFolder Folder;
};

TEST_F(Photos, EachFormatIsTurnedUpright)
{
    const char* const upright[] = {"rgbw", "grwb", "wbgr", "bwrg", "rbgw", "brwg", "wgbr", "gwrb"};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const Corners expected = upright[orientation - 1];
        EXPECT_EQ(CornersOf(Decode(TurnedJpeg(orientation))), expected) << "JPEG " << orientation;
        EXPECT_EQ(CornersOf(Decode(TurnedPng(orientation))), expected) << "PNG " << orientation;
        EXPECT_EQ(CornersOf(Decode(TurnedWebP(orientation))), expected) << "WebP " << orientation;
    }
    EXPECT_EQ(CornersOf(Decode(Encoded(Squares(), "TIFF", QImageIOHandler::TransformationRotate90))), "brwg");
    EXPECT_EQ(CornersOf(Decode(TurnedPng(9))), "rgbw") << "no such orientation";
}

TEST_F(Photos, DamagedFilesAreRejected)
{
    for (const char* const name :
         {"png/colour", "webp/lossy", "tiff/plain", "tiff/tiles", "svg/shapes", "heif/heic", "heif/avif"}) {
        QFile seed(DECKFORGE_SOURCE_DIR "/fuzz/corpus/" + QString(name));
        ASSERT_TRUE(seed.open(QIODevice::ReadOnly));
        const QByteArray whole = seed.readAll();
        for (const qsizetype left : {qsizetype(14), whole.size() / 2, whole.size() * 9 / 10})
            EXPECT_EQ(FailureOf([&] { (void)Decode(whole.first(left)); }), 481) << name << " " << left;
    }
    QByteArray wide = Encoded(Squares(), "PNG");
    wide.replace(16, 4, BigEndian(quint32{0x7FFFFFFF}));
    EXPECT_EQ(FailureOf([&] { (void)Decode(wide); }), 481);
    EXPECT_EQ(FailureOf([&] {
                  (void)Decode("<svg xmlns='http://www.w3.org/2000/svg' width='9999' height='9999'/>");
              }),
              481);
}

TEST_F(Photos, DrawingsAreDrawnAtTheScaleOfTheSurface)
{
    const QString path = Folder.Write("a.svg", Drawing);
    PictureLoader loader(4);
    const Picture picture = loader.LoadPicture(path);
    EXPECT_EQ(picture.Size(), QSize(10, 4));
    PictureBox surface(picture.Size(), 4);
    surface.PaintPicture(picture, 0, 0);
    const QImage fine = surface.Image().Pixels();
    EXPECT_EQ(fine.pixel(20, 8), qRgb(0, 0, 0));
    EXPECT_EQ(fine.pixel(21, 8), qRgb(255, 255, 255));
    EXPECT_EQ(picture.Pixels(), PictureLoader().LoadPicture(path).Pixels())
        << "the natural one stays as it is";
}

TEST_F(Photos, APrintTwinStandsForItsPictureAboveScale1)
{
    const QString path = Folder.WritePicture("wolf.bmp", Picture(Filled({10, 8}, Qt::red)));
    const auto write = [&](const char* name, int scale, Qt::GlobalColor colour) {
        EXPECT_TRUE(Filled(QSize(10, 8) * scale, colour).save(Folder.Path(name)));
    };
    write("wolf@3x.png", 2, Qt::black); // not of the size that its name says: ignored
    EXPECT_EQ(Drawn(PictureLoader(3).LoadPicture(path), 3), 0x0000FF);
    QFile::remove(Folder.Path("wolf@3x.png"));
    write("wolf@2x.png", 2, Qt::green);
    write("wolf@8x.JPG", 8, Qt::blue);
    Folder.Write("wolf@16x.txt", "no picture");
    EXPECT_EQ(Drawn(PictureLoader(1).LoadPicture(path), 1), 0x0000FF);
    EXPECT_EQ(Drawn(PictureLoader(2).LoadPicture(path), 2), 0x00FF00);
    EXPECT_EQ(Drawn(PictureLoader(2).LoadPicture(path), 1), 0x0000FF) << "on a surface of scale 1";
    EXPECT_GE(Drawn(PictureLoader(4).LoadPicture(path), 4), 0xF00000) << "the next finer one";
    EXPECT_GE(Drawn(PictureLoader(16).LoadPicture(path), 16), 0xF00000) << "the finest there is";
    EXPECT_EQ(PrintTwinPath(QStringLiteral("/a.b/wolf.tar.bmp"), 4), "/a.b/wolf.tar@4x.bmp");
}

TEST_F(Photos, APictureThatMovedIsFoundByItsName)
{
    Folder.WritePicture("wolf.bmp", PictureOf({"rr"}));
    PictureLoader loader;
    EXPECT_EQ(FailureOf([&] { (void)loader.LoadPicture("C:\\Pictures\\wolf.bmp"); }), 76);
    loader.SearchIn({"/nowhere", Folder.Path()});
    EXPECT_EQ(RowsOf(loader.LoadPicture("C:\\Pictures\\wolf.bmp")), PixelRows{"rr"});
    EXPECT_EQ(FailureOf([&] { (void)loader.LoadPicture("/gone/bear.bmp"); }), 76);
}

TEST_F(Photos, APhotoOf12MegapixelsIsDecodedOnce)
{
    const QString path = Folder.WritePicture("photo.bmp", Picture(QImage(4000, 3000, QImage::Format_Mono)));
    PictureLoader loader;
    const Picture first = loader.LoadPicture(path);
    EXPECT_EQ(loader.LoadPicture(path).Pixels().constBits(), first.Pixels().constBits());
}

TEST_F(Photos, EnlargingKeepsEvenAreasAndJoinsPartsWithoutASeam)
{
    EXPECT_EQ(Resampled(Filled({3, 2}, Qt::green), {0, 0, 3, 2}, {12, 8}), Filled({12, 8}, Qt::green));
    const QImage places = PictureOfPlaces({16, 8}).Pixels();
    const QImage whole = Resampled(places, places.rect(), {64, 32});
    EXPECT_EQ(Resampled(places, {8, 2, 8, 4}, {32, 16}), whole.copy(32, 8, 32, 16));
    QImage half(2, 1, QImage::Format_ARGB32_Premultiplied);
    half.fill(Qt::transparent);
    half.setPixel(0, 0, qRgba(255, 255, 255, 255));
    const QImage smooth = Resampled(half, half.rect(), {8, 4});
    for (int x = 0; x < 8; ++x)
        EXPECT_LE(qRed(smooth.pixel(x, 0)), qAlpha(smooth.pixel(x, 0))) << x;
}

} // namespace deckforge
