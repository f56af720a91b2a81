// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/Printing.h"
#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/StandardCard.h"
#include "support/WorkshopTest.h"

namespace deckforge {

class PrintingTest : public WorkshopTest {
protected:
    PrintingTest()
    {
        AddElement<LargeCard>(Shop.Set);
        AddElement<Character>(Shop.Set);
    }

    /// A printer page as an image, large enough for the position of a playing piece.
    QImage Painted(PrintedPage page, int dotsPerInch)
    {
        QImage paper(2500, 4800, QImage::Format_RGB32);
        paper.fill(Qt::white);
        paper.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
        paper.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
        PaintPage(Shop, page, paper);
        return paper;
    }
};

TEST_F(PrintingTest, PicturesKeepTheirSizeAndMarginsAreInPixels)
{
    // Width and height of the printed picture, in printer pixels.
    const std::tuple<PrintedPage, int, bool, int, int> rows[] = {
        {PrintedPage::Card, 300, false, 950, 800},     {PrintedPage::Card, 300, true, 475, 800},
        {PrintedPage::Card, 600, true, 950, 1600},     {PrintedPage::LargeCard, 300, false, 1900, 800},
        {PrintedPage::LargeCard, 300, true, 950, 800}, {PrintedPage::CharacterAlone, 300, false, 1900, 800}};
    for (const auto& [page, dotsPerInch, noBack, width, height] : rows) {
        Header().NoBack = noBack;
        if (page == PrintedPage::Card)
            (void)ShowCard(Shop, 1);
        else if (page == PrintedPage::LargeCard)
            (void)ShowLargeCard(Shop, 1);
        else
            (void)ShowCharacter(Shop, 1);
        const QImage paper = Painted(page, dotsPerInch);
        const int top = 40 + 2 * FontMeasures({"Arial", 12}, dotsPerInch).LineHeight() + 20;
        const QRect ink = InkIn(paper, {0, top - 10, paper.width(), paper.height() - top + 10});
        EXPECT_EQ(ink.topLeft(), QPoint(40, top)) << width;
        EXPECT_NEAR(ink.bottom(), top + height - 1, 1) << width;
        EXPECT_NEAR(ink.right(), 40 + width - 1, 1) << width;
    }
}

TEST_F(PrintingTest, HeadingIsTwoLinesOfTwelvePoints)
{
    constexpr int line = 115; // 12 points are 100 pixels here
    const QImage paper = Painted(PrintedPage::Card, 600);
    const QRect first = InkIn(paper, {0, 0, 1000, 40 + line});
    const QRect second = InkIn(paper, {0, 40 + line, 1000, line});
    EXPECT_GE(first.top(), 40);
    EXPECT_GE(first.left(), 40);
    EXPECT_NEAR(first.height(), 93, 6) << "capitals and the descender of g";
    EXPECT_NEAR(second.top() - first.top(), line, 4);
}

TEST_F(PrintingTest, ThePieceIsAtItsTraditionalPosition)
{
    (void)ShowCharacter(Shop, 1);
    Header().NoBack = true; // the piece is painted twice nevertheless
    const QImage paper = Painted(PrintedPage::Character, 300);
    const int top = 40 + 2 * FontMeasures({"Arial", 12}, 300).LineHeight() + 40 + 256 * 15;
    const QRect ink = InkIn(paper, {0, 2000, paper.width(), paper.height() - 2000});
    EXPECT_EQ(ink.topLeft(), QPoint(40, top));
    EXPECT_NEAR(ink.right(), 40 + 950 - 1, 1);
}

TEST_F(PrintingTest, PrintsToTheDefaultPrinter)
{
    User.PrinterFile = Folder.Path("page.pdf");
    PrintCard(Shop, TheRun, PrintedPage::Card);
    EXPECT_EQ(User.PrintedDocuments, QStringList("New set - CARD 1"));
    EXPECT_EQ(User.BoxTexts(), QStringList("Print|Printing done!"));
    EXPECT_TRUE(Folder.Read("page.pdf").contains("/Width 1216\n"))
        << "four pixels to each of the card and its back";

    User.Boxes.clear();
    FirstCard().Picture = Folder.Write("damaged.bmp", "BM no picture");
    WritePdf(Shop, TheRun, PrintedPage::Card, Folder.Path("page.pdf"), 600);
    EXPECT_TRUE(Folder.Read("page.pdf").contains("/Width 304\n")) << "what cannot be shown is as it was";
    EXPECT_TRUE(User.Boxes.empty()) << "already reported when shown";
}

TEST_F(PrintingTest, TheSymbolIsPrintedWhereItIsShown)
{
    Header().Symbol = Folder.WritePicture("s.bmp", PictureOf(PixelRows(9, "rrrrrrr")));
    (void)ShowSet(Shop);
    const auto printedAt = [&](int left, int top) {
        Shop.Templates.Standard.picSymbol.Left = left;
        Shop.Templates.Standard.picSymbol.Top = top;
        WritePdf(Shop, TheRun, PrintedPage::Card, Folder.Path("page.pdf"), 600);
        const QByteArray page = Folder.Read("page.pdf");
        const qsizetype picture = page.indexOf("/Width 1216\n");
        return page.mid(picture, page.indexOf("endstream", picture) - picture);
    };
    const QByteArray printed = printedAt(40, 100);
    EXPECT_TRUE(printed == printedAt(40, 100));
    EXPECT_FALSE(printed == printedAt(60, 100));
    EXPECT_FALSE(printed == printedAt(40, 120));
}

TEST_F(PrintingTest, APrinterThatCannotBePaintedOnIsAnError)
{
    User.PrinterFile = "/no/such/folder/page.pdf";
    EXPECT_EQ(FailureOf([&] { PrintCard(Shop, TheRun, PrintedPage::Card); }), 482);
    EXPECT_TRUE(User.Boxes.empty());
}

} // namespace deckforge
