#include "compose/SetView.h"
#include "core/modInfo.h"
#include "output/frmCardSheet.h"
#include "support/Failures.h"
#include "support/PixelText.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

namespace deckforge {

namespace {

constexpr QRgb BlackPixel = qRgb(0, 0, 0);

/// A set of cards that are told by their colours, 0x000010 x their number, and by nothing else.
class SheetTest : public testing::Test {
protected:
    SheetTest() : Shop(User)
    {
        InitForm(Shop);
        Shop.Set.Header.SaveTo = Folder.WithSeparator();
        Shop.Set.Header.SetName = QStringLiteral("Sea");
        Shop.Set.Cards[1].Color = 0x10;
        for (int i = 2; i <= 5; ++i) {
            AddElement(Shop.Set, StandardKind);
            Shop.Set.Cards[i].Color = 0x10 * i;
        }
    }

    QImage Sheet(const char* name) { return QImage(Folder.Path(QString::fromLatin1(name))); }
    /// Which card lies in the cell; 0 for a blank one.
    static int CardIn(const QImage& sheet, int x, int y)
    {
        const QRgb pixel = sheet.pixel(x + 75, y + 240);
        return pixel == qRgb(255, 255, 255) ? 0 : qRed(pixel) / 0x10;
    }

    TestFolder Folder;
    ScriptedUser User;
    Workshop Shop;
};

} // namespace

TEST_F(SheetTest, EachCopyTakesACellAndTheLastSheetIsWrittenAsFarAsItIsFilled)
{
    Shop.Set.Cards[2].Copies = 3;
    Shop.Set.Cards[4].Copies = 0;
    CreateCardSheets(Shop, SheetGrid{2, 2});
    const QImage first = Sheet("Sea Sheet 1.bmp");
    ASSERT_EQ(first.size(), QSize(608, 512));
    EXPECT_EQ(CardIn(first, 0, 0), 1);
    EXPECT_EQ(CardIn(first, 304, 0), 2);
    EXPECT_EQ(CardIn(first, 0, 256), 2);
    EXPECT_EQ(CardIn(first, 304, 256), 2);
    const QImage second = Sheet("Sea Sheet 2.bmp");
    EXPECT_EQ(CardIn(second, 0, 0), 3);
    EXPECT_EQ(CardIn(second, 304, 0), 5);
    EXPECT_EQ(CardIn(second, 0, 256), 0);
    EXPECT_EQ(User.BoxTexts(),
              std::vector<QString>{QStringLiteral("Create cardsheets|2 cardsheets are created.")});
}

TEST_F(SheetTest, TheGridLiesOnTheOuterPixelsAndBacksAtTheRight)
{
    CreateCardSheets(Shop, SheetGrid{2, 3});
    const QImage sheet = Sheet("Sea Sheet 1.bmp");
    for (const int x : {151, 152, 303, 304 + 151, 304 + 152, 607})
        EXPECT_EQ(sheet.pixel(x, 130), BlackPixel) << x;
    for (const int y : {255, 511, 767})
        EXPECT_EQ(sheet.pixel(60, y), BlackPixel) << y;
    EXPECT_EQ(qRed(sheet.pixel(0, 0)), 0x10) << "the first outline lies outside";
    const QImage back = Shop.Art.imgCB(0).Pixels();
    EXPECT_EQ(sheet.pixel(152 + 70, 100), back.pixel(70, 100));
}

TEST_F(SheetTest, WithoutBacksACellIsACard)
{
    Shop.Set.Header.NoBack = true;
    CreateCardSheets(Shop, SheetGrid{5, 1});
    const QImage sheet = Sheet("Sea Sheet 1.bmp");
    ASSERT_EQ(sheet.size(), QSize(760, 256));
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(CardIn(sheet, 152 * i, 0), i + 1);
        EXPECT_EQ(sheet.pixel(152 * i + 151, 60), BlackPixel);
    }
}

TEST_F(SheetTest, ALastCardWithoutCopiesKeepsThePartialSheetFromBeingWritten)
{
    Shop.Set.Cards[5].Copies = 0;
    CreateCardSheets(Shop, SheetGrid{3, 1});
    EXPECT_TRUE(Folder.Has(QStringLiteral("Sea Sheet 1.bmp")));
    EXPECT_FALSE(Folder.Has(QStringLiteral("Sea Sheet 2.bmp")));
    CreateCardSheets(Shop, std::nullopt);
    EXPECT_EQ(User.LastBox().Text, QStringLiteral("0 cardsheets are created."));
}

TEST_F(SheetTest, ASecondRunWritesAtEveryCard)
{
    CreateCardSheets(Shop, SheetGrid{6, 1});
    CreateCardSheets(Shop, SheetGrid{6, 1});
    const QImage sheet = Sheet("Sea Sheet 1.bmp");
    EXPECT_EQ(CardIn(sheet, 0, 0), 0) << "each sheet ends up with its last card only";
    EXPECT_EQ(CardIn(sheet, 4 * 304, 0), 5);
}

TEST_F(SheetTest, LargeCardsStandAboveTheirBacksAndGoToTheClipboard)
{
    AddElement(Shop.Set, LargeKind);
    AddElement(Shop.Set, LargeKind);
    Shop.Set.LargeCards[1].Color = 0x10;
    Shop.Set.LargeCards[2].Color = 0x20;
    for (int i = 1; i <= 2; ++i)
        Shop.Set.LargeCards[i].ShowPicture = false;
    CreateLargeCardSheets(Shop, SheetGrid{1, 2});
    const QImage sheet = Sheet("Sea Sheet Large 1.bmp");
    ASSERT_EQ(sheet.size(), QSize(608, 512));
    EXPECT_EQ(CardIn(sheet, 0, 0), 1);
    EXPECT_EQ(CardIn(sheet, 0, 256), 2) << "over the back of the row above";
    EXPECT_EQ(sheet.pixel(500, 100), qRgb(255, 255, 255)) << "the cell is twice as wide";
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(304, 256));
    EXPECT_EQ(User.LastBox().Text, QStringLiteral("1 large cardsheet is created."));

    AddElement(Shop.Set, CharacterKind);
    CreateCharacterSheets(Shop, SheetGrid{1, 1});
    EXPECT_EQ(User.LastBox().Title, QStringLiteral("Create large cardsheets"));
    EXPECT_EQ(User.LastBox().Text, QStringLiteral("1 character cardsheet is created."));
    EXPECT_FALSE(Folder.Has(QStringLiteral("Sea Sheet Large 2.bmp")));
}

TEST_F(SheetTest, AFailureIsToldAndTheRunGoesOn)
{
    Shop.Set.Header.SaveTo = Folder.Path(QStringLiteral("none/"));
    CreateCardSheets(Shop, SheetGrid{6, 1});
    EXPECT_EQ(User.BoxTexts(),
              (std::vector<QString>{QStringLiteral("Saving the cardsheet|Something went wrong."),
                                    QStringLiteral("Create cardsheets|1 cardsheet is created.")}));
}

} // namespace deckforge
