// SPDX-License-Identifier: GPL-3.0-or-later

#include "commands/OutputCommands.h"
#include "output/Statistics.h"
#include "platform/Version.h"
#include "support/EveryKind.h"
#include "support/FileBytes.h"
#include "support/SetTest.h"

namespace deckforge {

class PagesTest : public SetTest {
protected:
    PagesTest()
    {
        Set.Header.SaveTo = Folder.WithSeparator();
        Set.Header.SetName = "My Set";
    }

    void AddCards(int count)
    {
        for (int i = 2; i <= count; ++i)
            AddElement<Card>(Set);
        for (int i = 1; i <= count; ++i)
            Set.Cards[i].Filename = QStringLiteral("card %1").arg(i);
    }
    /// The images of a page, separated by bars.
    QString ImagesOf(const char* page)
    {
        QStringList images;
        for (const QByteArray& line : Folder.Read(page).split('\n')) {
            if (line.contains("IMG SRC"))
                images.append(QString(line).section('"', 1, 1));
        }
        return images.join('|');
    }

    ShownRun TheRun{User};
};

TEST_F(PagesTest, APageOfSixHasTheSameLinesWithEmptySlots)
{
    AddCards(1);
    Set.Header.FilenamePrefix = "p";
    EXPECT_TRUE(CreateHtml(Set, TheRun, HtmlPages::Cards));
    ExpectLines(Folder.Read("My Set 1.htm"), TestData("page.htm"));
    EXPECT_EQ(User.BoxTexts(), QStringList{"Save HTML|1 HTML sheet is created."});
}

TEST_F(PagesTest, PagesAreLinkedAndCopiesAreRepeatedImages)
{
    AddCards(7);
    Set.Cards[1].Copies = 6;
    Set.Header.ReplaceSpace = true;
    EXPECT_TRUE(CreateHtml(Set, TheRun, HtmlPages::Cards));
    // Twelve copies fill two pages, but three are linked.
    const QByteArray second = Folder.Read("My_Set_2.htm");
    EXPECT_TRUE(
        second.contains("<P>Pages:&nbsp;&nbsp;<A HREF=\"My_Set_1.htm\">1</A>&nbsp;&nbsp;<B>2</B>&nbsp;&nbsp;"
                        "<A HREF=\"My_Set_3.htm\">3</A>&nbsp;&nbsp;</P>\r\n"));
    EXPECT_EQ(ImagesOf("My_Set_1.htm"), QStringList(6, "card_1.bmp").join('|'));
    EXPECT_EQ(ImagesOf("My_Set_2.htm").count("bmp"), 6);
    EXPECT_EQ(User.LastBox().Text, "2 HTML sheets are created.");
    EXPECT_FALSE(Folder.Has("My_Set_3.htm"));
}

TEST_F(PagesTest, NamesAreEscaped)
{
    AddCards(7);
    Set.Header.SetName = "<script>\"&amp;";
    Set.Cards[1].Filename = "\"><b>&";
    EXPECT_TRUE(CreateHtml(Set, TheRun, HtmlPages::Cards));
    const QByteArray page = Folder.Read("<script>\"&amp; 1.htm");
    const QByteArray name = "&lt;script&gt;&quot;&amp;";
    for (const QByteArray& line : {"<TITLE>" + name + "</TITLE>", "<A HREF=\"" + name + " 2.htm\">2</A>",
                                   QByteArray("<IMG SRC=\"&quot;&gt;&lt;b&gt;&.bmp\">")})
        EXPECT_TRUE(page.contains(line)) << page.toStdString();
}

TEST_F(PagesTest, ImagesAreNamedByKindPrefixAndNumber)
{
    AddOneOfEachKind(Set);
    Set.LargeCards[1].Filename = "Whale";
    Set.LargeCards[1].Copies = 4;
    Set.Characters[1].Filename = "Sailor";
    AddCards(12);
    Set.Header.FilenamePrefix = "sea";
    Set.Header.FileNr = true;
    EXPECT_TRUE(CreateHtml(Set, TheRun, HtmlPages::Cards) && CreateHtml(Set, TheRun, HtmlPages::LargeCards) &&
                CreateHtml(Set, TheRun, HtmlPages::Characters) && CreateHtml(Set, TheRun, HtmlPages::Pieces));
    EXPECT_TRUE(ImagesOf("My Set 2.htm").endsWith("|sea 12 card 12.bmp"));
    EXPECT_EQ(ImagesOf("Large My Set 2.htm"), "Large sea 1 Whale.bmp");
    EXPECT_EQ(ImagesOf("Character My Set 1.htm"), "Character sea 1 Sailor.bmp");
    EXPECT_EQ(ImagesOf("Character Piece My Set 1.htm"), "Character Piece sea 1 Sailor.bmp");
    EXPECT_TRUE(Folder.Read("Large My Set 1.htm").contains("<TITLE>My Set</TITLE>"));
    EXPECT_TRUE(Folder.Read("Character Piece My Set 1.htm").contains("<TITLE>Character Piece My Set<"));
    Set.Header.FileNr = false;
    CreateHtml(Set, TheRun, HtmlPages::LargeCards);
    EXPECT_EQ(ImagesOf("Large My Set 2.htm"), "Large sea Whale.bmp");
}

TEST_F(PagesTest, ACardWithoutAFileNameStopsThePages)
{
    EXPECT_FALSE(CreateHtml(Set, TheRun, HtmlPages::Cards));
    EXPECT_EQ(User.LastBox().Title, "Missing information");
    EXPECT_EQ(User.LastBox().Style, BoxStyle::Exclamation);
    EXPECT_TRUE(CreateHtml(Set, TheRun, HtmlPages::Pieces));
    EXPECT_EQ(User.LastBox().Text, "0 character playing piece HTML sheets are created.");
    AddCards(1);
    Set.Header.SetName = "../outside";
    EXPECT_TRUE(CreateHtml(Set, TheRun, HtmlPages::Cards));
    EXPECT_EQ(TheRun.Problems(), QStringList("card 1 \"CARD 1\": " + Folder.Path("../outside 1.htm") +
                                             ": Bad file name or number"));
    EXPECT_EQ(User.LastBox().Text, "1 HTML sheet is created.") << "it is counted nevertheless";
    AddCards(7);
    for (int i = 1; i <= 7; ++i)
        Set.Cards[i].Copies = 32767;
    EXPECT_EQ(FailureOf([&] { CreateHtml(Set, TheRun, HtmlPages::Cards); }), 6);
}

TEST_F(PagesTest, TheListingHasTheTextsOfAllKinds)
{
    Set.Cards[1].Info = "one\r\ntwo";
    AddOneOfEachKind(Set);
    EXPECT_TRUE(WriteListing(Set, Folder.Path("set.txt"), User));
    ExpectLines(Folder.Read("set.txt").replace(WebAddress, "@WEB@"), TestData("listing.txt"));
    EXPECT_EQ(User.BoxTexts(), QStringList{"Save text|The card set text is exported."});
    EXPECT_FALSE(WriteListing(Set, Folder.Path("none/set.txt"), User));
    EXPECT_EQ(User.LastBox().Text, "The file is NOT saved due to an error.\r\n\r\n76, Path not found");
}

TEST_F(PagesTest, StatisticsCountEachCardOnceHighestFirst)
{
    AddCards(8);
    for (int i = 2; i <= 4; ++i)
        Set.Cards[i].Type = "OMEN", Set.Cards[i].SubType.clear();
    Set.Cards[5].SubType = "Dragon";
    Set.Cards[5].Copies = 9;
    Set.Cards[8].CardBack = 3;
    ShowStatistics(Set, User);
    EXPECT_EQ(User.LastBox().Title, "Statistics");
    ExpectLines(User.LastBox().Text.toUtf8(), TestData("statistics.txt"));
    Set.Cards[1].CardBack = 28;
    EXPECT_EQ(FailureOf([&] { (void)StatisticsText(Set); }), 9);
}

} // namespace deckforge
