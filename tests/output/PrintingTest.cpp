#include "output/Printing.h"
#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/StandardCard.h"
#include "support/WorkshopTest.h"

namespace deckforge {

namespace {

/// The first and the last row of ink, up to a gap.
struct Ink {
    int Top;
    int Bottom;
};

/// The next run of ink in the columns from left, at or below a row.
Ink NextInk(const QImage& paper, int from, int left, int columns)
{
    const auto hasInk = [&](int y) { return !InkIn(paper, {left, y, columns, 1}).isNull(); };
    int top = from;
    while (top < paper.height() && !hasInk(top))
        ++top;
    int bottom = top;
    while (bottom < paper.height() && hasInk(bottom))
        ++bottom;
    return {top, bottom - 1};
}

} // namespace

class PrintingTest : public WorkshopTest {
protected:
    PrintingTest()
    {
        AddElement<LargeCard>(Shop.Set);
        AddElement<Character>(Shop.Set);
    }

    /// A printer's page as pixels, large enough for the place of a playing piece.
    QImage Laid(PrintedPage page, int dotsPerInch)
    {
        QImage paper(2500, 4800, QImage::Format_RGB32);
        paper.fill(Qt::white);
        paper.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
        paper.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
        LayPage(Shop, page, paper);
        return paper;
    }
};

TEST_F(PrintingTest, PicturesKeepTheirSizeAndMarginsTheirPixels)
{
    // The width and the height are those of the printed picture, in pixels of the printer.
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
        const QImage paper = Laid(page, dotsPerInch);
        const int lineHeight = FontMeasures({"Arial", 12}, dotsPerInch).LineHeight();
        const int top = 40 + 2 * lineHeight + 20;
        // Its outline runs down the margin; no line of the heading reaches so far down.
        const Ink outline = NextInk(paper, top - 10, 40, 1);
        EXPECT_EQ(outline.Top, top) << width;
        EXPECT_NEAR(outline.Bottom, top + height - 1, 1) << width;
        EXPECT_NEAR(InkIn(paper, {0, top + 1, paper.width(), 1}).right(), 40 + width - 1, 1) << width;
        EXPECT_EQ(NextInk(paper, outline.Bottom + 10, 0, paper.width()).Top, paper.height()) << "no piece";
    }
}

TEST_F(PrintingTest, HeadingIsTwoLinesOfTwelvePoints)
{
    const QImage paper = Laid(PrintedPage::Card, 600);
    const Ink first = NextInk(paper, 0, 40, 1000);
    const Ink second = NextInk(paper, first.Bottom + 1, 40, 1000);
    // "V" is as high as capitals are, 0.7 of the 100 pixels that 12 points have here; the base lines are a
    // line apart.
    EXPECT_NEAR(first.Bottom - first.Top, 92, 6) << "with the descender of g";
    EXPECT_GE(first.Top, 40);
    EXPECT_NEAR(second.Top - first.Top, 115, 4);
    EXPECT_EQ(NextInk(paper, 0, 0, 40).Top, paper.height()) << "nothing in the margin";
}

TEST_F(PrintingTest, PieceStandsWhereItAlwaysStood)
{
    (void)ShowCharacter(Shop, 1);
    Header().NoBack = true; // the piece is there twice all the same
    const QImage paper = Laid(PrintedPage::Character, 300);
    const int lineHeight = FontMeasures({"Arial", 12}, 300).LineHeight();
    const int top = 40 + 2 * lineHeight + 40 + 256 * 15;
    const Ink outline = NextInk(paper, 2000, 40, 1);
    EXPECT_EQ(outline.Top, top);
    EXPECT_NEAR(InkIn(paper, {0, top + 1, paper.width(), 1}).right(), 40 + 950 - 1, 1);
}

TEST_F(PrintingTest, PrintedOnAFileForAPrinter)
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
    EXPECT_TRUE(User.Boxes.empty()) << "showing it has told";
}

TEST_F(PrintingTest, NothingIsDoneWithAPrinterThatTakesNoPage)
{
    User.PrinterFile = "/no/such/folder/page.pdf";
    EXPECT_EQ(FailureOf([&] { PrintCard(Shop, TheRun, PrintedPage::Card); }), 482);
    EXPECT_TRUE(User.Boxes.empty());
}

} // namespace deckforge
