// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/LargeCard.h"
#include "compose/StandardCard.h"
#include "output/frmCardSheet.h"
#include "support/WorkshopTest.h"

#include <QClipboard>
#include <QGuiApplication>

namespace deckforge {

/// A set of cards that differ only in their colours, 0x000010 x their number.
class SheetTest : public WorkshopTest {
protected:
    SheetTest()
    {
        Header().SetName = "Sea";
        for (int i = 2; i <= 5; ++i)
            AddElement<Card>(Shop.Set);
        for (int i = 1; i <= 5; ++i)
            Shop.Set.Cards[i].Color = 0x10 * i;
    }

    /// The cards in the cells with these corners; 0 if blank.
    static std::vector<int> CardsIn(const QImage& sheet, std::initializer_list<QPoint> cells)
    {
        std::vector<int> cards;
        for (const QPoint cell : cells) {
            const QRgb pixel = sheet.pixel(cell + QPoint(75, 240));
            cards.push_back(pixel == qRgb(255, 255, 255) ? 0 : qRed(pixel) / 0x10);
        }
        return cards;
    }

    QImage Composed(CompositionFailure (*show)(Workshop&, int16), int card)
    {
        EXPECT_FALSE(show(Shop, static_cast<int16>(card)));
        return Surface().Image().Pixels();
    }

    static constexpr QRgb BlackPixel = qRgb(0, 0, 0);
};

TEST_F(SheetTest, EachCopyHasACellAndTheLastSheetMayBePartlyFilled)
{
    Shop.Set.Cards[2].Copies = 3;
    Shop.Set.Cards[4].Copies = 0;
    CreateSheets(Shop, TheRun, CardKind::Standard, SheetGrid{2, 2});
    const QImage first = Folder.Image("Sea Sheet 1.bmp");
    ASSERT_EQ(first.size(), QSize(608, 512));
    EXPECT_EQ(CardsIn(first, {{0, 0}, {304, 0}, {0, 256}, {304, 256}}), (std::vector{1, 2, 2, 2}));
    const QImage second = Folder.Image("Sea Sheet 2.bmp");
    EXPECT_EQ(CardsIn(second, {{0, 0}, {304, 0}, {0, 256}}), (std::vector{3, 5, 0}));
    EXPECT_EQ(User.BoxTexts(), QStringList{"Create cardsheets|2 cardsheets are created."});
}

TEST_F(SheetTest, EachCellHasACardAndItsBackInAGrid)
{
    for (int16 i = 1; i <= 5; ++i)
        Shop.Set.Cards[i].CardBack = i;
    CreateSheets(Shop, TheRun, CardKind::Standard, SheetGrid{2, 3});
    const QImage sheet = Folder.Image("Sea Sheet 1.bmp");
    for (const int x : {151, 152, 303, 304 + 151, 304 + 152, 607})
        EXPECT_EQ(sheet.pixel(x, 130), BlackPixel) << x;
    for (const int y : {255, 511, 767})
        EXPECT_EQ(sheet.pixel(60, y), BlackPixel) << y;
    for (int i = 0; i < 5; ++i) {
        const QRect back(i % 2 * 304 + 152 + 1, i / 2 * 256, 149, 254); // the grid covers its first column
        const QImage art = Shop.Art.imgCB(i).Pixels().copy(1, 0, 149, 254);
        EXPECT_EQ(sheet.copy(back).convertToFormat(art.format()), art) << "card " << i + 1;
        const QImage card = Composed(ShowCard, i + 1).copy(0, 0, 151, 255);
        const QRect front(i % 2 * 304, i / 2 * 256, 151, 255); // the grid covers the rest
        EXPECT_EQ(sheet.copy(front).convertToFormat(card.format()), card) << "card " << i + 1;
    }
}

TEST_F(SheetTest, WithoutBacksACellIsOneCardAndASecondRunWritesAfterEveryCard)
{
    Header().NoBack = true;
    CreateSheets(Shop, TheRun, CardKind::Standard, SheetGrid{5, 1});
    const QImage sheet = Folder.Image("Sea Sheet 1.bmp");
    ASSERT_EQ(sheet.size(), QSize(760, 256));
    EXPECT_EQ(CardsIn(sheet, {{0, 0}, {152, 0}, {304, 0}, {456, 0}, {608, 0}}), (std::vector{1, 2, 3, 4, 5}));
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(sheet.pixel(152 * i + 151, 60), BlackPixel);
    CreateSheets(Shop, TheRun, CardKind::Standard, SheetGrid{6, 1});
    EXPECT_EQ(CardsIn(Folder.Image("Sea Sheet 1.bmp"), {{0, 0}, {608, 0}}), (std::vector{0, 5}))
        << "each sheet ends up with its last card only";
}

TEST_F(SheetTest, LargeCardsAreCopiedToTheClipboardAndCharactersShareTheirName)
{
    AddElement<LargeCard>(Shop.Set);
    CreateSheets(Shop, TheRun, CardKind::Large, SheetGrid{1, 1});
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(304, 256));
    EXPECT_EQ(User.LastBox().Text, "1 large cardsheet is created.");
    AddElement<Character>(Shop.Set);
    CreateSheets(Shop, TheRun, CardKind::Character, SheetGrid{1, 1});
    EXPECT_EQ(User.LastMessageText(), "Create large cardsheets|1 character cardsheet is created.");
    EXPECT_FALSE(Folder.Has("Sea Sheet Large 2.bmp"));
}

TEST_F(SheetTest, BelowALargeCardIsItsBackInAnOutlineUnlessARowFollows)
{
    for (int i = 1; i <= 3; ++i) {
        AddElement<LargeCard>(Shop.Set);
        Shop.Set.LargeCards[i].Color = 0x10 * i;
        Shop.Set.LargeCards[i].ShowPicture = false;
    }
    Shop.Set.LargeCards[2].CardBack = Folder.WritePicture("rear.bmp", PictureOfPlaces({304, 256}));
    CreateSheets(Shop, TheRun, CardKind::Large, SheetGrid{2, 2});
    const QImage sheet = Folder.Image("Sea Sheet Large 1.bmp");
    ASSERT_EQ(sheet.size(), QSize(2 * 608, 512));
    EXPECT_EQ(CardsIn(sheet, {{0, 0}, {304, 0}, {608, 0}, {0, 256}}), (std::vector{1, 0, 2, 3}));
    const QImage front = Composed(ShowLargeCard, 2);
    EXPECT_EQ(sheet.copy(608, 0, 304, 256).convertToFormat(front.format()), front);
    PictureBox back({304, 256});
    back.PaintPicture(PictureOfPlaces({304, 256}), 0, 0);
    back.LineBox(0, 0, 303, 255);
    const QImage expected = back.Image().Pixels();
    EXPECT_EQ(sheet.copy(608, 256, 304, 256).convertToFormat(expected.format()), expected);

    Header().NoBack = true;
    CreateSheets(Shop, TheRun, CardKind::Large, SheetGrid{2, 2});
    const QImage bare = Folder.Image("Sea Sheet Large 1.bmp");
    ASSERT_EQ(bare.size(), QSize(2 * 304, 512));
    EXPECT_EQ(CardsIn(bare, {{0, 0}, {304, 0}, {0, 256}, {304, 256}}), (std::vector{0, 0, 3, 0}))
        << "after the first run each card is written alone";
}

TEST_F(SheetTest, SheetsHaveTheNameAndTheFormatOfTheSet)
{
    Header().NoBack = true;
    Header().ReplaceSpace = true;
    Header().FileNr = true; // has no effect
    for (const auto& [prefix, format, name] : {std::tuple{"", int16{0}, "Sea_Sheet_2.bmp"},
                                               {"my sea", int16{1}, "my_sea_Sheet_2.jpg"},
                                               {"my sea", int16{2}, "my_sea_Sheet_2.gif"}}) {
        Header().FilenamePrefix = prefix;
        Header().SaveFormat = format;
        CreateSheets(Shop, TheRun, CardKind::Standard, SheetGrid{3, 1});
        EXPECT_EQ(Folder.Image(name).size(), QSize(3 * 152, 256)) << name;
    }
}

TEST_F(SheetTest, AFailureIsReportedAndTheRunContinues)
{
    Header().SaveTo = Folder.Write("file", {}) + "/";
    CreateSheets(Shop, TheRun, CardKind::Standard, SheetGrid{6, 1});
    EXPECT_EQ(User.BoxTexts(), (QStringList{"Saving the cardsheet|Something went wrong.",
                                            "Create cardsheets|1 cardsheet is created."}));
}

} // namespace deckforge
