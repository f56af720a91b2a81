// SPDX-License-Identifier: GPL-3.0-or-later

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
    WriteCardBacks(Shop.Set, Shop.Art, Folder.Path());
    for (const char* name : {"Adventure.bmp", "character back 0.bmp"})
        EXPECT_EQ(bitsOfPixel(name), 24) << name;
    for (const char* name : {"Diablo II.bmp", "Diablo II Artifact.bmp", "Transformations.bmp"})
        EXPECT_EQ(bitsOfPixel(name), 8) << name;
    Folder.WritePicture("large.bmp", Shop.Art.imgChB(3));
    EXPECT_EQ(bitsOfPixel("large.bmp"), 4);
    EXPECT_EQ(Folder.Image("large.bmp").convertToFormat(QImage::Format_RGB32),
              Shop.Art.imgChB(3).Pixels().convertToFormat(QImage::Format_RGB32));
}

} // namespace deckforge
