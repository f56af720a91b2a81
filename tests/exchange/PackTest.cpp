// SPDX-License-Identifier: GPL-3.0-or-later

#include "exchange/Pack.h"

#include "core/PictureFolders.h"
#include "core/modInfo.h"
#include "files/modFile.h"
#include "imaging/PictureLoader.h"
#include "support/TestFolder.h"

#include <QDir>
#include <gtest/gtest.h>

namespace deckforge {

class Pack : public testing::Test {
protected:
    Pack()
    {
        InitSet(Set);
        Set.Header.SetName = "Wood";
        QDir(Folder.Path()).mkpath("a");
        QDir(Folder.Path()).mkpath("b");
        Set.Cards[1].Picture = Folder.WritePicture("a/wolf.bmp", PictureOf({"rr"}));
        Set.Cards[1].Background = Folder.WritePicture("b/Wolf.bmp", PictureOf({"gg"}));
        Set.Header.Symbol = Folder.Write("secret.bmp", "no picture, but a password");
        Set.LastBackground = Folder.Path("gone.bmp");
    }

    PackOutcome Run() { return PackSet(Set, "/anywhere/wood.dkf", Folder.Path("packed")); }

    TestFolder Folder;
    CardSet Set;
};

TEST_F(Pack, APackedSetFindsItsPicturesWhereverItIs)
{
    EXPECT_TRUE(QImage(8, 4, QImage::Format_RGB32).save(Folder.Path("a/wolf@4x.png")));
    const PackOutcome outcome = Run();
    EXPECT_EQ(outcome.Copied, 2);
    EXPECT_EQ(outcome.Problems, QStringList({Folder.Path("secret.bmp") + ": Invalid picture",
                                             Folder.Path("gone.bmp") + ": File not found"}));
    EXPECT_TRUE(Folder.Has("packed/Wood pictures/wolf@4x.png"));
    EXPECT_FALSE(Folder.Has("packed/Wood pictures/secret.bmp")) << "no file but pictures is given away";

    ASSERT_TRUE(QDir().rename(Folder.Path("packed"), Folder.Path("moved")));
    QDir(Folder.Path("a")).removeRecursively();
    QDir(Folder.Path("b")).removeRecursively();
    CardSet moved;
    ASSERT_TRUE(ReadDKF(moved, Folder.Path("moved/wood.dkf")).IsRead());
    PictureLoader loader;
    loader.SearchIn(FoldersOfPictures(moved));
    EXPECT_EQ(RowsOf(loader.LoadPicture(moved.Cards[1].Picture)), PixelRows{"rr"});
    EXPECT_EQ(RowsOf(loader.LoadPicture(moved.Cards[1].Background)), PixelRows{"gg"});
}

TEST_F(Pack, AFolderWithFilesIsRefusedAndLeftAsItIs)
{
    QDir(Folder.Path()).mkpath("packed");
    Folder.Write("packed/letter.txt", "mine");
    EXPECT_EQ(FailureOf([this] { (void)Run(); }), 75);
    EXPECT_EQ(QDir(Folder.Path("packed")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList("letter.txt"));
}

} // namespace deckforge
