// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/GifWriter.h"
#include "imaging/PictureLoader.h"
#include "imaging/mIntelJPEGLibrary.h"
#include "support/FileBytes.h"
#include "support/TestFolder.h"

#include <QFileInfo>
#include <QSet>

namespace deckforge {

namespace {

/// Grey levels with a palette. The padding of each row has old memory contents.
Picture PaletteOf(int colours, QSize size)
{
    QImage image(size, QImage::Format_Indexed8);
    std::fill_n(image.bits(), image.sizeInBytes(), uchar{0xAA});
    for (int i = 0; i < colours; ++i)
        image.setColor(i, qRgb(i, i, i));
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, static_cast<uint>((x + y) % colours));
    }
    return Picture(image);
}

/// The bytes of the colours in hexadecimal.
QList<QByteArray> PaletteOfGif(const QByteArray& gif)
{
    QList<QByteArray> colours;
    for (int i = 0; i < 2 << (Byte(gif, 10) & 7); ++i)
        colours.append(gif.sliced(13 + 3 * i, 3).toHex());
    return colours;
}

cDIBSection SectionOf(const Picture& picture)
{
    cDIBSection section;
    section.CreateFromPicture(picture);
    return section;
}

} // namespace

class PictureWriters : public testing::Test {
protected:
    QByteArray WrittenBmp(const Picture& picture) const
    {
        SavePicture(picture, Folder.Path("a.bmp"));
        return Folder.Read("a.bmp");
    }
    QByteArray WrittenJpeg(const Picture& picture, int dotsPerInch = 96) const
    {
        EXPECT_TRUE(SaveJPG(SectionOf(picture), Folder.Path("a.jpg"), 90, dotsPerInch));
        return Folder.Read("a.jpg");
    }
    QByteArray WrittenGif(const Picture& picture) const
    {
        SavePicture(picture, Folder.Path("source.bmp"));
        EXPECT_EQ(ConvertBmpToGif(Folder.Path("source.bmp"), Folder.Path("a.gif")), std::nullopt);
        return Folder.Read("a.gif");
    }

    TestFolder Folder;
};

TEST_F(PictureWriters, ABmpHasTheHeaderOfItsPicture)
{
    for (const int scale : {1, 4}) {
        SCOPED_TRACE(scale);
        const QByteArray bmp = WrittenBmp(PictureBox(QSize(5, 4), scale).Image());
        const int rowBytes = scale == 1 ? 16 : 60;
        EXPECT_EQ(bmp.size(), 54 + 4 * scale * rowBytes);
        EXPECT_EQ(LittleEndian<qint32>(bmp, 2), bmp.size());
        EXPECT_EQ(LittleEndian<qint32>(bmp, 10), 54) << "offset of the pixels";
        EXPECT_EQ(LittleEndian<qint32>(bmp, 14), 40) << "size of the header";
        EXPECT_EQ(LittleEndian<qint32>(bmp, 18), 5 * scale) << "width";
        EXPECT_EQ(LittleEndian<qint32>(bmp, 22), 4 * scale) << "height, bottom-up";
        EXPECT_EQ(LittleEndian<qint16>(bmp, 28), 24) << "bits per pixel";
        EXPECT_EQ(LittleEndian<qint32>(bmp, 30), 0) << "compression";
        for (const qsizetype perMetre : {38, 42})
            EXPECT_EQ(LittleEndian<qint32>(bmp, perMetre), scale == 1 ? 3780 : 15118) << perMetre;
    }
}

TEST_F(PictureWriters, ABmpKeepsThePixelsOfAPicture)
{
    const Picture picture = PictureOfPlaces({33, 20});
    WrittenBmp(picture);
    EXPECT_EQ(Folder.Image("a.bmp"), picture.Pixels());
    EXPECT_EQ(FailureOf([&] { SavePicture(Picture(), Folder.Path("b.bmp")); }), 481);
    EXPECT_FALSE(Folder.Has("b.bmp"));
}

TEST_F(PictureWriters, ABmpHasTheDepthOfItsPaletteAndZerosAtTheEndsOfItsRows)
{
    for (const auto& [colours, bits] : {std::pair{16, 4}, {17, 8}, {256, 8}})
        EXPECT_EQ(LittleEndian<qint16>(WrittenBmp(PaletteOf(colours, {150, 3})), 28), bits) << colours;
    const QByteArray bmp = WrittenBmp(PaletteOf(256, {150, 2}));
    ASSERT_EQ(bmp.size(), 54 + 1024 + 2 * 152);
    EXPECT_EQ(bmp.last(4), QByteArray::fromHex("94950000"));
    EXPECT_EQ(bmp.sliced(54 + 1024 + 148, 4), QByteArray::fromHex("95960000"));
}

TEST_F(PictureWriters, AJpegHasItsQualityHalfTheColoursAndItsDensity)
{
    const QByteArray jpeg = WrittenJpeg(PictureOfPlaces({153, 40}), 384);
    EXPECT_EQ(CoarsestJpegStep(jpeg, 0), 24) << "brightness";
    EXPECT_EQ(CoarsestJpegStep(jpeg, 1), 20) << "colour";
    const QByteArray frame = JpegSegments(jpeg, 0xC0);
    ASSERT_EQ(frame.size(), 15);
    EXPECT_EQ(Byte(frame, 5), 3) << "brightness and two of colour";
    EXPECT_EQ(Byte(frame, 7), 0x22) << "brightness";
    EXPECT_EQ(Byte(frame, 10), 0x11) << "blue";
    EXPECT_EQ(Byte(frame, 13), 0x11) << "red";
    EXPECT_EQ(Folder.Image("a.jpg").dotsPerMeterX(), 15118);
    EXPECT_EQ(Folder.Image("a.jpg").dotsPerMeterY(), 15118);
}

TEST_F(PictureWriters, AJpegHasItsRowsAndColoursInOrder)
{
    WrittenJpeg(PictureOfPlaces({153, 40})); // rows with padding
    const QImage read = Folder.Image("a.jpg");
    ASSERT_EQ(read.size(), QSize(153, 40));
    EXPECT_NEAR(qGreen(read.pixel(76, 0)), 0, 12);
    EXPECT_NEAR(qGreen(read.pixel(76, 39)), 39, 12);
    WrittenJpeg(PictureOf(PixelRows(16, std::string(16, 'r'))));
    EXPECT_NEAR(qRed(Folder.Image("a.jpg").pixel(8, 8)), 255, 3);
    EXPECT_NEAR(qBlue(Folder.Image("a.jpg").pixel(8, 8)), 0, 3);
}

TEST_F(PictureWriters, AJpegKeepsTheTimesOfTheFileThatItReplaces)
{
    const QDateTime old = QDateTime::fromSecsSinceEpoch(1000000000);
    const QString path = Folder.Write("a.jpg", "an older image");
    Folder.SetTime("a.jpg", old);
    WrittenJpeg(PictureOfPlaces({153, 40}));
    EXPECT_EQ(QFileInfo(path).lastModified(), old);
}

TEST_F(PictureWriters, AnImageThatCannotBeCreatedIsAnError)
{
    const cDIBSection surface = SectionOf(PictureOfPlaces({8, 8}));
    EXPECT_EQ(FailureOf([&] { SaveJPG(surface, Folder.Path(), 90, 96); }), 75);
    EXPECT_EQ(FailureOf([&] { SaveJPG(cDIBSection(), Folder.Path("b.jpg"), 90, 96); }), 26001);
    const QString bmp = Folder.WritePicture("a.bmp");
    EXPECT_EQ(ConvertBmpToGif(Folder.Path("none.bmp"), Folder.Path("a.gif")), "File not found");
    EXPECT_EQ(ConvertBmpToGif(bmp, Folder.Path("none/a.gif")), "Path not found");
}

TEST_F(PictureWriters, AGifHasThePaletteOfAPictureWithFewColours)
{
    const PixelRows rows = {"rgb", "#.#"};
    const QByteArray gif = WrittenGif(PictureOf(rows));
    ASSERT_GT(gif.size(), 13 + 8 * 3);
    EXPECT_EQ(gif.first(3), "GIF");
    EXPECT_EQ(LittleEndian<quint16>(gif, 6), 3) << "width";
    EXPECT_EQ(LittleEndian<quint16>(gif, 8), 2) << "height";
    EXPECT_EQ(Byte(gif, 10), 0xF2) << "a palette of eight, eight bits per colour";
    const QList<QByteArray> palette = PaletteOfGif(gif);
    for (const char* colour : {"ff0000", "00ff00", "0000ff", "000000", "ffffff"})
        EXPECT_TRUE(palette.contains(colour)) << colour;
    EXPECT_EQ(palette.count("000000"), 4) << "black, and three that are not used";
    EXPECT_EQ(RowsOf(Picture(Folder.Image("a.gif"))), rows);
    EXPECT_EQ(Byte(WrittenGif(PictureOf({"rr"})), 10), 0xF0) << "a palette of two for a single colour";
    EXPECT_EQ(RowsOf(Picture(Folder.Image("a.gif"))), PixelRows{"rr"});
}

TEST_F(PictureWriters, AGifOfManyColoursHas256AndLooksLikeThePicture)
{
    QImage picture(64, 64, QImage::Format_RGB32); // gradients
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x)
            picture.setPixel(x, y, qRgb(4 * x, 4 * y, 128));
    }
    const QByteArray gif = WrittenGif(Picture(picture));
    EXPECT_EQ(Byte(gif, 10), 0xF7);
    const QList<QByteArray> palette = PaletteOfGif(gif);
    EXPECT_GT(QSet<QByteArray>(palette.begin(), palette.end()).size(), 250) << "none for nothing";
    const QImage small = Folder.Image("a.gif")
                             .convertToFormat(QImage::Format_RGB32)
                             .scaled(8, 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (const QPoint at : {QPoint(0, 0), QPoint(7, 0), QPoint(0, 7), QPoint(4, 3)}) {
        EXPECT_NEAR(qRed(small.pixel(at)), 32 * at.x() + 14, 8) << at.x();
        EXPECT_NEAR(qGreen(small.pixel(at)), 32 * at.y() + 14, 8) << at.y();
    }
}

} // namespace deckforge
