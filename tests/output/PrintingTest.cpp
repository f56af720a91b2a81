#include "output/Printing.h"
#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "core/modInfo.h"
#include "support/Failures.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

namespace deckforge {

namespace {

/// A printer's page as pixels, large enough for the place of a playing piece.
QImage Paper(int dotsPerInch)
{
    QImage paper(2500, 4800, QImage::Format_RGB32);
    paper.fill(Qt::white);
    paper.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
    paper.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
    return paper;
}

/// The rows below a row in which there is ink in a column of pixels, up to the first gap.
struct Ink {
    int Top = 0;
    int Bottom = 0;
};

/// The next run of ink in the columns from left, at or below a row.
Ink NextInk(const QImage& paper, int from, int left, int columns)
{
    const auto hasInk = [&](int y) {
        for (int x = left; x < left + columns; ++x) {
            if (qGray(paper.pixel(x, y)) < 128)
                return true;
        }
        return false;
    };
    int top = from;
    while (top < paper.height() && !hasInk(top))
        ++top;
    int bottom = top;
    while (bottom < paper.height() && hasInk(bottom))
        ++bottom;
    return {top, bottom - 1};
}

int RightmostInk(const QImage& paper, int y)
{
    int x = paper.width() - 1;
    while (x > 0 && qGray(paper.pixel(x, y)) >= 128)
        --x;
    return x;
}

class PrintingTest : public testing::Test {
protected:
    PrintingTest() : Shop(User)
    {
        InitForm(Shop);
        AddElement(Shop.Set, LargeKind);
        AddElement(Shop.Set, CharacterKind);
    }

    QImage Laid(PrintedPage page, int dotsPerInch)
    {
        QImage paper = Paper(dotsPerInch);
        LayPage(Shop, page, paper);
        return paper;
    }

    ScriptedUser User;
    Workshop Shop;
};

TEST_F(PrintingTest, PicturesKeepTheirSizeAndMarginsTheirPixels)
{
    struct Case {
        PrintedPage Page;
        int DotsPerInch;
        bool NoBack;
        int Width, Height; ///< of the printed picture, in pixels of the printer
    };
    for (const Case& c :
         {Case{PrintedPage::Card, 300, false, 950, 800}, Case{PrintedPage::Card, 300, true, 475, 800},
          Case{PrintedPage::Card, 600, true, 950, 1600}, Case{PrintedPage::LargeCard, 300, false, 1900, 800},
          Case{PrintedPage::LargeCard, 300, true, 950, 800},
          Case{PrintedPage::CharacterAlone, 300, false, 1900, 800}}) {
        Shop.Set.Header.NoBack = c.NoBack;
        if (c.Page == PrintedPage::Card)
            ShowCard(Shop, 1);
        else if (c.Page == PrintedPage::LargeCard)
            ShowLargeCard(Shop, 1);
        else
            ShowCharacter(Shop, 1);
        const QImage paper = Laid(c.Page, c.DotsPerInch);
        const int lineHeight = FontMeasures({QStringLiteral("Arial"), 12}, c.DotsPerInch).LineHeight();
        const int top = 40 + 2 * lineHeight + 20;
        // Its outline runs down the margin; no line of the heading reaches so far down.
        const Ink outline = NextInk(paper, top - 10, 40, 1);
        EXPECT_EQ(outline.Top, top) << c.Width;
        EXPECT_NEAR(outline.Bottom, top + c.Height - 1, 1) << c.Width;
        EXPECT_NEAR(RightmostInk(paper, top + 1), 40 + c.Width - 1, 1) << c.Width;
        EXPECT_EQ(NextInk(paper, outline.Bottom + 10, 0, paper.width()).Top, paper.height()) << "no piece";
    }
}

TEST_F(PrintingTest, HeadingIsTwoLinesOfTwelvePoints)
{
    Shop.Set.Header.SetName = QStringLiteral("Set");
    EXPECT_EQ(PageTitle(Shop.Set, PrintedPage::Card), QStringLiteral("Set - CARD 1"));
    EXPECT_EQ(PageTitle(Shop.Set, PrintedPage::LargeCard), QStringLiteral("Set - LARGE CARD 1"));
    EXPECT_EQ(PageTitle(Shop.Set, PrintedPage::CharacterAlone), QStringLiteral("Set - CHARACTER 1"));
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
    ShowCharacter(Shop, 1);
    Shop.Set.Header.NoBack = true; // the piece is there twice all the same
    const QImage paper = Laid(PrintedPage::Character, 300);
    const int lineHeight = FontMeasures({QStringLiteral("Arial"), 12}, 300).LineHeight();
    const int top = 40 + 2 * lineHeight + 40 + 256 * 15;
    const Ink outline = NextInk(paper, 2000, 40, 1);
    EXPECT_EQ(outline.Top, top);
    EXPECT_NEAR(RightmostInk(paper, top + 1), 40 + 950 - 1, 1);
}

TEST_F(PrintingTest, PrintedOnAFileForAPrinter)
{
    const TestFolder folder;
    User.PrinterFile = folder.Path(QStringLiteral("page.pdf"));
    PrintCard(Shop, PrintedPage::Card);
    EXPECT_EQ(User.PrintedDocuments, QStringList(QStringLiteral("New set - CARD 1")));
    EXPECT_EQ(User.BoxTexts(), std::vector{QStringLiteral("Print|Printing done!")});
    EXPECT_TRUE(folder.Read(QStringLiteral("page.pdf")).contains("/Width 1216\n"))
        << "four pixels to each of the card and its back";
}

TEST_F(PrintingTest, CardThatCannotBeShownIsPrintedAsItWas)
{
    const TestFolder folder;
    Shop.Set.Cards[1].Picture = folder.Write(QStringLiteral("damaged.bmp"), "BM no picture");
    const QString path = folder.Path(QStringLiteral("page.pdf"));
    WritePdf(Shop, PrintedPage::Card, path, 600);
    EXPECT_TRUE(folder.Read(QStringLiteral("page.pdf")).contains("/Width 304\n"));
    EXPECT_TRUE(User.Boxes.empty()) << "showing it has told";
}

TEST_F(PrintingTest, NothingIsDoneWithoutAPrinter)
{
    EXPECT_EQ(FailureOf([&] { PrintCard(Shop, PrintedPage::Card); }), 482);
    User.PrinterFile = QStringLiteral("/no/such/folder/page.pdf"); // a printer that takes no page
    EXPECT_EQ(FailureOf([&] { PrintCard(Shop, PrintedPage::Card); }), 482);
    EXPECT_TRUE(User.Boxes.empty());
}

} // namespace

} // namespace deckforge
