// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/RunReport.h"
#include "core/SetTables.h"
#include "core/Vocabulary.h"
#include "output/HtmlSheets.h"
#include "output/Printing.h"
#include "output/frmCardSheet.h"
#include "output/modCapture.h"
#include "support/EveryKind.h"
#include "support/WorkshopTest.h"

#include <QDir>

namespace deckforge {

class RunReportTest : public WorkshopTest {
protected:
    /// What a run reports.
    template <class Run>
    QStringList ProblemsOf(Run&& run)
    {
        User.Problems.clear();
        {
            ShownRun report(User);
            run(report);
        }
        return User.Problems;
    }
    QStringList ProblemsOfImages()
    {
        return ProblemsOf([&](ShownRun& report) {
            CreateImages(Shop, report, CardKind::Standard);
            CreateImages(Shop, report, CardKind::Large);
            CreateImages(Shop, report, CardKind::Character);
            SaveImage(Shop, report, CardKind::NewBack, 1);
        });
    }
    QStringList ProblemsOfSheets(SheetGrid grid)
    {
        return ProblemsOf([&](ShownRun& report) { CreateSheets(Shop, report, CardKind::Standard, grid); });
    }
    void AddCards(int count)
    {
        while (Shop.Set.Cards.Count() < count)
            AddElement<Card>(Shop.Set);
    }
};

TEST_F(RunReportTest, EveryPictureThatIsMissingOrRejectedIsNamedOnceWithItsCard)
{
    CardSet& set = Shop.Set;
    AddOneOfEachKind(set);
    set.CardBacks.Resize(BuiltInBackCount + 1);
    set.Characters[1].CardBack = UserDefinedCharacterBack;
    set.NewCardBacks[1].UsePicture = true;
    FirstCard().CardBack = set.CardBacks.Count();
    ASSERT_EQ(ProblemsOfImages(), QStringList());
    Card& card = FirstCard();
    LargeCard& large = set.LargeCards[1];
    Character& hero = set.Characters[1];

    const QString damaged = Folder.Write("damaged.bmp", "BM no picture");
    const QString missing = Folder.Path("missing.bmp");
    const std::pair<const char*, std::vector<QString*>> elements[] = {
        {"card 1 \"CARD 1\"",
         {&card.Picture, &card.Background, &set.CardBacks[set.CardBacks.Count()].Picture}},
        {"large card 1 \"LARGE CARD 1\"", {&large.Picture, &large.Background, &large.CardBack}},
        {"character 1 \"CHARACTER 1\"",
         {&hero.Picture, &hero.Background, &hero.CardBackPicture, &hero.PlayingPiece}},
        {"card back 1 \"Back 1\"", {&set.NewCardBacks[1].Picture}},
        {"set \"New set\"", {&set.Header.Symbol}}};
    for (const auto& [element, fields] : elements) {
        for (QString* field : fields) {
            *field = missing;
            EXPECT_EQ(ProblemsOfImages(), QStringList(element + (": " + missing) + ": File not found"));
            *field = damaged;
            EXPECT_EQ(ProblemsOfImages(), QStringList(element + (": " + damaged) + ": Invalid picture"));
            field->clear();
        }
    }
}

TEST_F(RunReportTest, RunsLeaveNoFilesOpen)
{
    AddOneOfEachKind(Shop.Set);
    FirstCard().Picture = Folder.Write("damaged.bmp", "BM");
    Shop.Set.LargeCards[1].Picture = Folder.WritePicture("picture.bmp");
    const auto openFiles = [] { return QDir("/proc/self/fd").entryList(QDir::System | QDir::AllEntries); };
    ProblemsOfImages();
    const qsizetype before = openFiles().size();
    for (Header().SaveFormat = 0; Header().SaveFormat < 3; ++Header().SaveFormat)
        ProblemsOfImages();
    EXPECT_EQ(openFiles().size(), before);
}

TEST_F(RunReportTest, AFileWrittenTwiceInARunIsReportedUnderAnyName)
{
    AddCards(3);
    Shop.Set.Cards[2].Title = "CARD 1";
    const QString replaced = "Replaces the file of card 1 \"CARD 1\"";
    for (const char* extension : {"bmp", "jpg", "gif"}) {
        const QString path = Folder.Path("CARD 1.") + extension;
        const QStringList expected = {"card 2 \"CARD 1\": " + path + ": " + replaced};
        const auto run = [&](ShownRun& report) { CreateImages(Shop, report, CardKind::Standard); };
        EXPECT_EQ(ProblemsOf(run), expected);
        EXPECT_EQ(ProblemsOf(run), expected) << "files of an earlier run do not count";
        ++Header().SaveFormat;
    }
    Header().SaveFormat = 0;
    Shop.Set.Cards[2].Filename = "link";
    QFile::link(Folder.Path("CARD 1.bmp"), Folder.Path("link.bmp"));
    EXPECT_EQ(ProblemsOf([&](ShownRun& report) { CreateImages(Shop, report, CardKind::Standard); }),
              QStringList("card 2 \"CARD 1\": " + Folder.Path("link.bmp") + ": " + replaced));
}

TEST_F(RunReportTest, SheetsThatAreReplacedOrLeftUnwrittenAreReported)
{
    AddCards(24);
    for (int i = 1; i <= 24; ++i)
        Shop.Set.Cards[i].Copies = 4;
    EXPECT_EQ(ProblemsOfSheets({2, 4}),
              (QStringList{"card 22 \"CARD 22\": " + Folder.Path("New set Sheet 1.bmp") +
                               ": Replaces the file of card 2 \"CARD 2\"",
                           "card 24 \"CARD 24\": " + Folder.Path("New set Sheet 2.bmp") +
                               ": Replaces the file of card 4 \"CARD 4\""}));
    Shop.Sheet = {};
    Shop.Set.Cards[24].Copies = 0;
    EXPECT_EQ(ProblemsOfSheets({6, 8}), // 92 cells on sheets of 48
              QStringList("card 24 \"CARD 24\": " + Folder.Path("New set Sheet 2.bmp") +
                          ": Not written, since the last card has no copies"));
    EXPECT_TRUE(Folder.Has("New set Sheet 1.bmp"));
    EXPECT_EQ(ProblemsOf([&](ShownRun& report) { CreateSheets(Shop, report, CardKind::Large, SheetGrid()); }),
              QStringList("set \"New set\": No sheet is written"));
}

TEST_F(RunReportTest, PagesThatAreNotWrittenAreReported)
{
    AddCards(8);
    for (int i = 1; i <= 8; ++i)
        Shop.Set.Cards[i].Filename = "c";
    Shop.Set.Cards[8].Copies = 0;
    EXPECT_EQ(
        ProblemsOf([&](ShownRun& report) { EXPECT_TRUE(CreateHtml(Shop.Set, report, HtmlPages::Cards)); }),
        QStringList("card 8 \"CARD 8\": " + Folder.Path("New set 2.htm") +
                    ": Not written, since the last card has no copies"));
}

TEST_F(RunReportTest, AFolderIsCreatedOrReportedOnceAndAnUnknownFormatForEachFile)
{
    AddCards(2);
    const auto run = [&](ShownRun& report) { CreateImages(Shop, report, CardKind::Standard); };
    Header().SaveTo = Folder.Path("made/here/");
    EXPECT_EQ(ProblemsOf(run), QStringList());
    EXPECT_TRUE(Folder.Has("made/here/CARD 2.bmp"));
    Header().SaveTo = Folder.Write("file", {}) + "/";
    EXPECT_EQ(ProblemsOf(run), QStringList(Header().SaveTo + ": The folder is missing and cannot be made"));
    Header().SaveFormat = 7;
    EXPECT_EQ(ProblemsOf(run),
              (QStringList{"card 1 \"CARD 1\": " + Header().SaveTo + "CARD 1.: There is no save format 7",
                           "card 2 \"CARD 2\": " + Header().SaveTo + "CARD 2.: There is no save format 7"}));
    Header().SaveFormat = 0;
    Header().SaveTo = Folder.WithSeparator();
    FirstCard().Filename = "a/b";
    FirstCard().Title = "two\nlines";
    EXPECT_EQ(ProblemsOf(run),
              QStringList("card 1 \"two lines\": " + Folder.Path("a/b.bmp") + ": Bad file name or number"));
}

TEST_F(RunReportTest, APlayingPieceOffThePageIsReported)
{
    AddElement<Character>(Shop.Set);
    const auto problems = [&](int pixelsPerInch) {
        return ProblemsOf([&](ShownRun& report) {
            WritePdf(Shop, report, PrintedPage::Character, Folder.Path("a.pdf"), pixelsPerInch);
        });
    };
    EXPECT_EQ(problems(600), QStringList());
    EXPECT_EQ(problems(300), QStringList("character 1 \"CHARACTER 1\": " + Folder.Path("a.pdf") +
                                         ": The playing piece does not lie on the page"));
}

} // namespace deckforge
