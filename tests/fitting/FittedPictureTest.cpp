// SPDX-License-Identifier: GPL-3.0-or-later

#include "fitting/FittedPicture.h"
#include "core/PictureFolders.h"
#include "fitting/Crop.h"
#include "imaging/PictureLoader.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace deckforge {

TEST(Crop, StaysInsideThePhotoWithTheProportionsOfTheFrame)
{
    Crop crop({4000, 3000}, {139, 105});
    const double proportion = 139.0 / 105;
    EXPECT_DOUBLE_EQ(crop.Part().width(), 3000 * proportion);
    EXPECT_EQ(crop.Part().center(), QPointF(2000, 1500));
    crop.SetZoom(4, {100, 100}); // near a corner
    EXPECT_DOUBLE_EQ(crop.Zoom(), 4);
    EXPECT_EQ(crop.Part().topLeft(), QPointF(crop.Part().left(), 75)) << "the anchor stays";
    crop.Move({-9999, 9999});
    EXPECT_DOUBLE_EQ(crop.Part().left(), 0);
    EXPECT_DOUBLE_EQ(crop.Part().bottom(), 3000);
    crop.SetZoom(0.1, {2000, 1500});
    EXPECT_DOUBLE_EQ(crop.Zoom(), 1);
    crop.SetZoom(1000, {2000, 1500});
    EXPECT_DOUBLE_EQ(crop.Zoom(), Crop::MaxZoom);
    EXPECT_NEAR(crop.Part().width() / crop.Part().height(), proportion, 1e-9);
}

TEST(Crop, APartChosenBeforeComesBack)
{
    Crop before({800, 600}, {100, 100});
    before.SetZoom(3, {120, 500});
    Crop after({800, 600}, {100, 100});
    after.SetPart(before.Part());
    EXPECT_NEAR(after.Part().left(), before.Part().left(), 1e-6);
    EXPECT_NEAR(after.Part().bottom(), before.Part().bottom(), 1e-6);
    after.SetPart({-500, -500, 9000, 1}); // of a photo that has changed
    EXPECT_TRUE(QRectF(0, 0, 800, 600).contains(after.Part()));
}

TEST(FittedPicture, IsWrittenWithItsPrintTwinAndItsOrigin)
{
    const TestFolder folder;
    QImage photo(800, 600, QImage::Format_RGB32);
    photo.fill(Qt::blue);
    for (int x = 0; x < 800; ++x) {
        for (int y = 200; y < 600; ++y)
            photo.setPixel(x, y, qRgb(255, 0, 0));
    }
    const FittedFrom from = {.Photo = QStringLiteral("/photos/Łódź.jpg"), .Part = {100, 200, 400, 400}};
    const QString path = NewPicturePath(folder.Path(), from.Photo);
    EXPECT_EQ(path, folder.Path(QStringLiteral("Łódź.png")));
    WriteFitted(photo, from, {100, 100}, path);

    const Picture natural = PictureLoader(1).LoadPicture(path);
    EXPECT_EQ(natural.Size(), QSize(100, 100));
    EXPECT_EQ(natural.Pixels().pixel(50, 2), qRgb(255, 0, 0)) << "nothing above the part";
    const Picture fine = PictureLoader(8).LoadPicture(path).ForScale(8);
    EXPECT_EQ(fine.Scale(), 4) << "as fine as the photo";
    EXPECT_EQ(fine.Size(), natural.Size());

    const std::optional<FittedFrom> noted = OriginOf(path);
    ASSERT_TRUE(noted);
    EXPECT_EQ(noted->Photo, from.Photo);
    EXPECT_EQ(noted->Part, from.Part);
    EXPECT_FALSE(OriginOf(folder.WritePicture("wolf.bmp")));
    EXPECT_FALSE(OriginOf("/nowhere"));

    EXPECT_EQ(NewPicturePath(folder.Path(), from.Photo), folder.Path(QStringLiteral("Łódź 2.png")));
    WriteFitted(photo, {.Photo = "a", .Part = {0, 0, 150, 150}}, {100, 100}, folder.Path("coarse.png"));
    EXPECT_TRUE(PrintTwinsOf(folder.Path("coarse.png")).empty());
}

TEST(PictureFolders, AreBesideTheSetAndCannotLeadElsewhere)
{
    CardSet set;
    set.Header.SetName = QStringLiteral("../../Night/Wood");
    set.File = SetFile{QStringLiteral("/home/me/wood.dkf"), {}};
    EXPECT_EQ(PicturesFolder(set), "/home/me/.._.._Night_Wood pictures/");
    EXPECT_EQ(FoldersOfPictures(set),
              QStringList({"/home/me/", "/home/me/.._.._Night_Wood pictures/", "/home/me/wood pictures/"}));
}

} // namespace deckforge
