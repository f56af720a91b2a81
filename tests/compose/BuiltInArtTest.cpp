#include "compose/BuiltInArt.h"

#include "compose/SetView.h"
#include "output/modCapture.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <QFile>
#include <QtEndian>
#include <gtest/gtest.h>

namespace deckforge {

namespace {

/// The connected area of one colour, taken out of the image: its pixels become transparent.
qsizetype TakeArea(QImage& image, QPoint seed)
{
    constexpr QRgb taken = 0;
    const QRgb colour = image.pixel(seed);
    if (colour == taken)
        return 0;
    QList<QPoint> open = {seed};
    image.setPixel(seed, taken);
    qsizetype size = 0;
    while (!open.isEmpty()) {
        const QPoint at = open.takeLast();
        ++size;
        for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
            const QPoint next = at + step;
            if (image.valid(next) && image.pixel(next) == colour) {
                image.setPixel(next, taken);
                open.append(next);
            }
        }
    }
    return size;
}

/// Bits of a pixel as a BMP file tells them.
int BitsOfBmp(const QString& path)
{
    constexpr qsizetype placeOfBits = 28;
    QFile file(path);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return bytes.size() > placeOfBits + 2 ? qFromLittleEndian<quint16>(bytes.constData() + placeOfBits) : 0;
}

} // namespace

TEST(BuiltInArtTest, EveryPieceOfTheBackTemplateIsHitByItsOwnSeed)
{
    const QPoint seeds[] = {{17, 15},  {54, 13},  {88, 13},   {124, 13},  {160, 13},  {191, 13},
                            {232, 13}, {15, 56},  {237, 54},  {15, 92},   {237, 91},  {16, 133},
                            {54, 133}, {92, 133}, {123, 133}, {164, 133}, {194, 133}, {226, 133}};
    for (const int scale : {1, 2, 3, 4, 7}) {
        SCOPED_TRACE(scale);
        QImage image = BuiltInArt(scale).picBackTemplate().Pixels().convertToFormat(QImage::Format_ARGB32);
        ASSERT_EQ(image.size(), QSize(254, 150) * scale);
        EXPECT_EQ(image.pixel(QPoint(1, 1) * scale), qRgb(255, 255, 255));
        EXPECT_EQ(image.pixel(QPoint(50, 50) * scale), qRgb(0, 0, 0));
        qsizetype reached = TakeArea(image, QPoint(1, 1) * scale) + TakeArea(image, QPoint(50, 50) * scale);
        for (const QPoint seed : seeds) {
            EXPECT_EQ(image.pixel(seed * scale), qRgb(255, 255, 255)) << seed.x() << ',' << seed.y();
            reached += TakeArea(image, seed * scale);
        }
        EXPECT_EQ(reached, qsizetype{image.width()} * image.height()) << "grey, or an area without a seed";
    }
}

TEST(BuiltInArtTest, ExportedBacksKeepTheirDepth)
{
    const TestFolder folder;
    ScriptedUser user;
    Workshop shop(user);
    InitForm(shop);
    WriteCardBacks(shop, folder.Path({}));
    EXPECT_EQ(BitsOfBmp(folder.Path(QStringLiteral("Adventure.bmp"))), 24);
    EXPECT_EQ(BitsOfBmp(folder.Path(QStringLiteral("character back 0.bmp"))), 24);
    for (const char* name : {"Diablo II.bmp", "Diablo II Artifact.bmp", "Transformations.bmp"})
        EXPECT_EQ(BitsOfBmp(folder.Path(QString::fromLatin1(name))), 8) << name;

    const QString large = folder.Path(QStringLiteral("large.bmp"));
    SavePicture(shop.Art.imgChB(3), large);
    EXPECT_EQ(BitsOfBmp(large), 4);
    EXPECT_EQ(QImage(large).convertToFormat(QImage::Format_RGB32),
              shop.Art.imgChB(3).Pixels().convertToFormat(QImage::Format_RGB32));
}

TEST(BuiltInArtTest, WhiteTextsOfTheCharacterFrontLieOnDarkAndBlackOnesOnWhite)
{
    const QImage front = BuiltInArt(1).picCharacter().Pixels();
    for (const QRect box : {QRect(80, 0, 140, 13), QRect(46, 243, 71, 10), QRect(185, 243, 71, 10)}) {
        for (int x = box.left(); x <= box.right(); ++x) {
            for (int y = box.top(); y <= box.bottom(); ++y)
                EXPECT_LT(qGray(front.pixel(x, y)), 90) << x << ',' << y;
        }
    }
    const QImage field = front.copy(13, 13, 276, 228);
    QImage white(field.size(), field.format());
    white.fill(Qt::white);
    EXPECT_EQ(field, white);
}

} // namespace deckforge
