#include "compose/BuiltInArt.h"

#include "output/modCapture.h"
#include "support/WorkshopTest.h"

#include <QtEndian>

namespace deckforge {

using BuiltInArtTest = WorkshopTest;

TEST_F(BuiltInArtTest, ExportedBacksKeepTheirDepth)
{
    const auto bitsOfPixel = [&](const char* name) {
        constexpr qsizetype placeInBmp = 28;
        return qFromLittleEndian<quint16>(Folder.Read(name).constData() + placeInBmp);
    };
    WriteCardBacks(Shop, Folder.Path());
    for (const char* name : {"Adventure.bmp", "character back 0.bmp"})
        EXPECT_EQ(bitsOfPixel(name), 24) << name;
    for (const char* name : {"Diablo II.bmp", "Diablo II Artifact.bmp", "Transformations.bmp"})
        EXPECT_EQ(bitsOfPixel(name), 8) << name;
    Folder.WritePicture("large.bmp", Shop.Art.imgChB(3));
    EXPECT_EQ(bitsOfPixel("large.bmp"), 4);
    EXPECT_EQ(Folder.Image("large.bmp").convertToFormat(QImage::Format_RGB32),
              Shop.Art.imgChB(3).Pixels().convertToFormat(QImage::Format_RGB32));
}

TEST_F(BuiltInArtTest, WhiteTextsOfTheCharacterFrontLieOnDarkAndBlackOnesOnWhite)
{
    const QImage front = Shop.Art.picCharacter().Pixels();
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
