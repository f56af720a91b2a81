// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/SetTables.h"
#include "files/Rescue.h"
#include "platform/Paths.h"
#include "support/EveryKind.h"
#include "support/FileBytes.h"
#include "support/SetTest.h"

#include <limits>

namespace deckforge {

namespace {

/// Lines of a set file, written with semicolons as line ends.
QByteArray LinesOf(QByteArray text)
{
    return text.replace(";", "\r\n");
}

QByteArray HeadOf(const QByteArray& version)
{
    return LinesOf("Amber Gnome - Varnhelm Deck Foundry;" + version + ";-- START --;");
}

/// A set file of version 1 with one card that has this type text and row.
QByteArray VersionOne(const QByteArray& type, const QByteArray& typeIndex, const QByteArray& typeCount = "15")
{
    return HeadOf("Version 1") +
           LinesOf("Old set;C:\\old.dkf;C:\\out\\;True;C:\\symbol.gif;old;True;False;") +
           LinesOf("Lettering; 9 ;True;False; 255 ;").repeated(6) + LinesOf(typeCount + ";27;1;") +
           LinesOf("Bear;" + type + ";" + typeIndex + ";2;True;bear.bmp;-150;104.5;7.5;True;False;") +
           LinesOf("STRENGTH 4;Line one|line two;;3;16777215;;4;SPELL;back.bmp;-- END --;");
}

} // namespace

class SetFileTest : public SetTest {
protected:
    bool Read(const QByteArray& bytes) { return OpenSet(Set, Folder.Write("set.dkf", bytes), User); }
    bool Write() { return WriteSet(Set, Folder.Path("written.dkf"), User); }
    QByteArray Written()
    {
        EXPECT_TRUE(WriteSet(Set, Folder.Path("written.dkf"), User));
        return Folder.Read("written.dkf");
    }

    const QString ReadFailure = "Error|Error while opening the Varnhelm Card Set.\r\n\r\n";
};

TEST_F(SetFileTest, ANewSetIsWrittenLineForLine)
{
    EXPECT_EQ(Set.Header.SaveTo, ProgramFolder());
    Set.Header.SaveTo = "/out/";
    Set.Header.FileName = "/sets/new.dkf";
    AddOneOfEachKind(Set);
    ExpectLines(Written(), TestData("new-set.txt"));
}

TEST_F(SetFileTest, AFileOfVersionOneIsConverted)
{
    ASSERT_TRUE(Read(VersionOne("SPELL", "0")));
    EXPECT_EQ(Set.Cards[1].FrameHeight, 104) << "halves are rounded to even";
    EXPECT_EQ(Set.Cards[1].Info, "Line one\r\nline two");
    EXPECT_EQ(User.BoxTexts(), (QStringList{"Converting|The set you are opening is of an older version.\r\n"
                                            "It will now be converted to the new version.",
                                            "Open file|The card set is loaded."}));
    ASSERT_TRUE(Read(VersionOne("ENEMY-Animal", "0")));
    EXPECT_EQ(Set.Cards[1].Type + '|' + Set.Cards[1].SubType, "ENEMY-|Animal") << "by the text alone";
    ASSERT_TRUE(Read(
        VersionOne("SPELL", "13", "16").replace("16\r\n27", "16\r\nQUEST\r\nTSEUQ\r\n7\r\nFalse\r\n27")));
    ASSERT_TRUE(Read(VersionOne("SPELL", "13", "15")));
    EXPECT_EQ(Set.CardTypes.Count(), 16) << "own rows are kept if the file has none";
}

TEST_F(SetFileTest, AFileThatIsNoSetChangesNothing)
{
    const QString newer = "Version conflict|The set you are opening is from a newer version.\r\n"
                          "It can not be opened in this version.";
    for (const auto& [bytes, told] :
         {std::pair{HeadOf("Version 10").toLower(),
                    QString("Open File Error|This is not a correct card set file.")},
          {HeadOf("Version 11"), newer},
          {HeadOf("Version10"), ReadFailure + "13, Type mismatch"}}) {
        EXPECT_FALSE(Read(bytes));
        EXPECT_EQ(User.LastMessageText(), told);
    }
    EXPECT_FALSE(OpenSet(Set, Folder.Path("none.dkf"), User));
    EXPECT_EQ(User.LastMessageText(), ReadFailure + "53, File not found");
    EXPECT_EQ(Set.Header.SetName, "New set");
}

TEST_F(SetFileTest, AFileCutAtAnyLineIsRejectedAndAWrongLastLineIsOnlyReported)
{
    const QByteArray whole = Written();
    for (qsizetype end = whole.indexOf("\r\n"); end >= 0 && end + 2 < whole.size();
         end = whole.indexOf("\r\n", end + 1)) {
        EXPECT_FALSE(Read(whole.first(end + 2)));
        EXPECT_EQ(User.LastMessageText(), ReadFailure + "62, Input past end of file");
    }

    User.Boxes.clear();
    EXPECT_TRUE(Read(QByteArray(whole).replace("-- END --", "-- end --")));
    EXPECT_EQ(User.BoxTexts(), (QStringList{"Error|No final match!", "Open file|The card set is loaded."}));
    EXPECT_EQ(User.Boxes[0].Style, BoxStyle::Question);
}

TEST_F(SetFileTest, ADamagedCountOfAnySectionLeavesASetThatCanBeSavedAndOpened)
{
    for (int i = 0; i < 2; ++i) {
        AddOwnType(Set, {"QUEST", {}, {}, {}, 0, false});
        AddOwnBack(Set, "own", "own.bmp");
        AddOneOfEachKind(Set);
    }
    AddElement<Card>(Set);
    const CardSet before = Set;
    const QList<QByteArray> lines = Written().split('\n');
    int damaged = 0;
    for (qsizetype line = 0; line < lines.size(); ++line) {
        for (const char* number : {" 0 ", "-2 ", "-32768 ", " 1 ", " 3 ", " 32767 ", " 1000000000 "}) {
            if (lines[line] != " 2 \r")
                continue;
            SCOPED_TRACE(testing::Message() << "line " << line + 1 << " is " << number);
            ++damaged;
            Set = before;
            Set.Characters.Current = 2;
            QList<QByteArray> changed = lines;
            changed[line] = QByteArray(number) + '\r';
            (void)Read(changed.join('\n'));
            EXPECT_TRUE(Set.Cards.Current >= 1 && Set.Cards.Current <= Set.Cards.Count());
            EXPECT_LE(Set.Characters.Current, Set.Characters.Count());
            const QByteArray saved = Written();
            ASSERT_TRUE(Read(saved)) << User.LastMessageText().toStdString();
            EXPECT_EQ(Written(), saved);
        }
    }
    EXPECT_GE(damaged, 6 * 7) << "six sections";
}

TEST_F(SetFileTest, InvalidCountsAreReported)
{
    const QByteArray whole = Written();
    const QByteArray counts = "\r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n";
    ASSERT_TRUE(whole.contains(counts));
    for (const auto& [count, failure] : {std::pair{" 1000000000 ", "6, Overflow"},
                                         {"-2 ", "9, Subscript out of range"},
                                         {" 32767 ", "13, Type mismatch"}}) {
        EXPECT_FALSE(Read(QByteArray(whole).replace(counts, QByteArray(counts).replace(" 1 ", count))));
        EXPECT_EQ(User.LastMessageText(), ReadFailure + failure);
    }
}

TEST_F(SetFileTest, LinesMayEndWithLfIfNoneEndsWithCrLf)
{
    Set.Cards[1].Title = "carriage\rreturn";
    const QByteArray whole = Written();
    QByteArray converted = whole;
    converted.replace("\r\n", "\n");
    ASSERT_TRUE(Read(converted));
    EXPECT_EQ(Written(), whole);

    Set.Cards[1].Title = "line\nfeed";
    const QByteArray withLineFeed = Written();
    ASSERT_TRUE(Read(withLineFeed));
    EXPECT_EQ(Set.Cards[1].Title, "line\nfeed");
}

TEST_F(SetFileTest, ASetThatCouldNotBeReadAgainIsNotWritten)
{
    const QByteArray old = Written();
    const QString failure = "Error|The file is NOT saved due to an error.\r\n\r\n";
    Set.Cards[1].PictureTop =
        std::numeric_limits<double>::quiet_NaN(); // the only known value that is written but cannot be read
    EXPECT_FALSE(Write());
    EXPECT_EQ(User.LastMessageText(), failure + "13, The set could not be opened again: Type mismatch");
    EXPECT_EQ(Folder.Read("written.dkf"), old);
    Set.Cards[1].PictureTop = std::numeric_limits<double>::max();
    EXPECT_TRUE(Write()) << "rounded to what the reader takes";
}

TEST_F(SetFileTest, LinesThatAreTooLongOrBrokenAreNeitherReadNorWritten)
{
    constexpr qsizetype longest = 1 << 16;
    QString& title = Set.Cards[1].Title;
    Set.Cards[1].Info = QStringLiteral("\r\n").repeated(longest);
    title = QString(longest, 'x');
    const QByteArray whole = Written();
    EXPECT_TRUE(Read(whole));
    EXPECT_EQ(Set.Cards[1].Info.size(), 2 * longest);
    EXPECT_FALSE(Read(QByteArray(whole).replace("xx\r", "xxx\r")));
    EXPECT_TRUE(User.LastMessageText().startsWith(ReadFailure + "6, A line"));
    title += 'x';
    EXPECT_FALSE(Write());
    EXPECT_TRUE(User.LastBox().Text.contains("\r\n\r\n6, A line"));
    EXPECT_EQ(SetFileBytes(Set, Unwritable::Cut).size(), whole.size()) << "cut";
    title.clear();
    EXPECT_TRUE(Write());
    Set.Cards[1].Info += "\r\n";
    EXPECT_FALSE(Write());
}

TEST_F(SetFileTest, AnyTextComesBackAsItWas)
{
    const char* const texts[] = {"Łódź",    "Ω и 漢字 שלום", "a 🐉 b",     "two\r\nlines",
                                 "\\u{41}", "\\u{",          "\\u{5C}u{", "€|x"};
    for (const char* const text : texts) {
        Set.Cards[1].Title = text;
        Set.Characters.Clear();
        ASSERT_TRUE(Read(Written())) << text;
        EXPECT_EQ(Set.Cards[1].Title, text);
    }
    Set.Cards[1].Info = "Łódź\r\n\\u{7D}";
    ASSERT_TRUE(Read(Written()));
    EXPECT_EQ(Set.Cards[1].Info, "Łódź\r\n\\u{7D}");
    Set.Cards[1].Title = "here";
    const QByteArray file = Written();
    ASSERT_TRUE(Read(QByteArray(file).replace("\r\nhere\r\n", "\r\n\\u{zz} \\u{110000} \\u{1f409}\r\n")));
    EXPECT_EQ(Set.Cards[1].Title, "\\u{zz} \\u{110000} 🐉") << "incomplete escapes are text";
}

TEST_F(SetFileTest, AListingNeedsUnicodeOnlyForTextsThatNeedIt)
{
    Set.Cards[1].Title = "Größe €";
    ExportSetText(Set, Folder.Path("a.txt"));
    EXPECT_TRUE(Folder.Read("a.txt").contains("1. Gr\xF6\xDF"
                                              "e \x80\r\n"));
    Set.Cards[1].Title = "Łódź";
    ExportSetText(Set, Folder.Path("a.txt"));
    EXPECT_TRUE(Folder.Read("a.txt").startsWith("\xEF\xBB\xBF"));
    EXPECT_TRUE(Folder.Read("a.txt").contains("1. Łódź\r\n"));
}

TEST_F(SetFileTest, SavingProposesTheCurrentFileAndStoresItsPath)
{
    const auto proposed = [&] {
        User.WillCancelDialog();
        SaveSet(Set, User);
        return User.SaveDialogs.back();
    };
    Set.Header.FileName = "/elsewhere/old.dkf";
    ASSERT_TRUE(Read(Written()));
    EXPECT_EQ(Set.Header.FileName, "/elsewhere/old.dkf");
    EXPECT_EQ(proposed().FileName, Folder.Path("set.dkf"));
    EXPECT_EQ(proposed().Title, "Save Card Set");
    EXPECT_TRUE(HaveSameContents(proposed().Known.value(), *AttributesOf(Folder.Path("set.dkf"))));

    User.WillChoose(Folder.Path("none/set.dkf"));
    EXPECT_EQ(SaveSet(Set, User), SaveResult::Failed);
    EXPECT_EQ(proposed().FileName, Folder.Path("none/set.dkf")) << "where it was to go";
    User.WillChoose(Folder.Path("chosen.dkf"));
    SaveSet(Set, User);
    EXPECT_TRUE(Folder.Read("chosen.dkf").contains(Folder.Path("chosen.dkf").toUtf8()));
    EXPECT_EQ(User.LastMessageText(), "Save file|The card set is saved.");

    UnsavedWork work(Folder.WithSeparator(), std::chrono::minutes(1));
    ASSERT_TRUE(OpenSet(Set, work.Rescue(Set), User));
    EXPECT_EQ(proposed().FileName, Folder.Path("chosen.dkf")) << "where the rescued set was";
    EXPECT_FALSE(proposed().Known);
    InitSet(Set);
    EXPECT_EQ(proposed().FileName, QString()) << "a new set has no file";
}

TEST_F(SetFileTest, FoldersNamedInAnyLanguageAreSavedAndReadAgain)
{
    Set.Header.SaveTo = "/home/иван/Документы/100%/";
    Set.Header.FileName = "/home/иван/набор.dkf";
    Set.Cards[1].Picture = "/data/Ελλάδα/two\r\nlines.bmp";
    Set.Cards[1].Background = "/home/josé/bär €.bmp"; // in the code page, so unchanged
    Set.LastBackground = "file:///home/%41.bmp";      // starts like an encoded path but is none
    const CardSet before = Set;
    const QByteArray written = Written();
    EXPECT_TRUE(written.contains("file:///data/%CE%95%CE%BB%CE%BB%CE%AC%CE%B4%CE%B1/two%0D%0Alines.bmp\r\n"));
    EXPECT_TRUE(written.contains("/home/jos\xE9/b\xE4r \x80.bmp\r\n"));
    InitSet(Set);
    ASSERT_TRUE(Read(written));
    EXPECT_EQ(Set.Header.SaveTo, before.Header.SaveTo);
    EXPECT_EQ(Set.Header.FileName, before.Header.FileName);
    EXPECT_EQ(Set.Cards[1].Picture, before.Cards[1].Picture);
    EXPECT_EQ(Set.Cards[1].Background, before.Cards[1].Background);
    EXPECT_EQ(Set.LastBackground, before.LastBackground);
}

TEST_F(SetFileTest, ReadingKeepsCurrentRecordsThatExist)
{
    AddOneOfEachKind(Set);
    AddElement<NewCardBack>(Set);
    const QByteArray bytes = Written();
    ASSERT_TRUE(Read(bytes));
    EXPECT_EQ(Set.NewCardBacks.Current, Set.NewCardBacks.Count()) << "the last one";
    Set.NewCardBacks.Current = 3;
    ASSERT_TRUE(Read(bytes));
    EXPECT_EQ(Set.NewCardBacks.Current, 1) << "there are two";
}

} // namespace deckforge
