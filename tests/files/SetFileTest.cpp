#include "core/Vocabulary.h"
#include "core/modInfo.h"
#include "files/modFile.h"
#include "support/Failures.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <QElapsedTimer>
#include <QFile>

namespace deckforge {

namespace {

/// Lines of a set file; here each ends in a semicolon.
QByteArray LinesOf(QByteArray text)
{
    return text.replace(";", "\r\n");
}

QByteArray HeadOf(const QByteArray& version)
{
    return LinesOf("Amber Gnome - Varnhelm Deck Foundry;" + version + ";-- START --;");
}

/// A set of version 1 with one card; the type line and its row as given.
QByteArray VersionOne(const QByteArray& type, const QByteArray& typeIndex, const QByteArray& typeCount = "15")
{
    return HeadOf("Version 1") +
           LinesOf("Old set;C:\\old.dkf;C:\\out\\;True;C:\\symbol.gif;old;True;False;") +
           LinesOf("Lettering; 9 ;True;False; 255 ;").repeated(6) + LinesOf(typeCount + ";27;1;") +
           LinesOf("Bear;" + type + ";" + typeIndex + ";2;True;bear.bmp;-150;104.5;7.5;True;False;") +
           LinesOf("STRENGTH 4;Line one|line two;;3;16777215;;4;SPELL;back.bmp;-- END --;");
}

class SetFileTest : public testing::Test {
protected:
    SetFileTest() { InitSet(Set); }

    bool Read(const QByteArray& bytes)
    {
        return ReadDKF(Set, Folder.Write(QStringLiteral("set.dkf"), bytes), User);
    }
    QByteArray Written()
    {
        EXPECT_TRUE(WriteDKF(Set, Folder.Path(QStringLiteral("written.dkf")), User, Report::Silent));
        return Folder.Read(QStringLiteral("written.dkf"));
    }

    TestFolder Folder;
    ScriptedUser User;
    CardSet Set;
};

const QString ReadFailure = QStringLiteral("Error|Error while opening the Varnhelm Card Set.\r\n\r\n");

} // namespace

TEST_F(SetFileTest, ANewSetIsWrittenLineForLine)
{
    Set.Header.SaveTo = QStringLiteral("/out/");
    Set.Header.FileName = QStringLiteral("/sets/new.dkf");
    const auto font = [](const char* size, const char* bold, const char* colour) {
        return LinesOf(QByteArray("Small Fonts;") + size + ";" + bold + ";False;" + colour + ";");
    };
    const QByteArray plain = font(" 7 ", "False", " 0 ");
    const QByteArray bold = font(" 7 ", "True", " 0 ");
    const QByteArray fonts = bold + plain + plain + bold + plain + font(" 5 ", "False", " 0 ") + bold +
                             plain + font(" 7 ", "True", " 16777215 ") + bold + plain +
                             font(" 6 ", "True", " 0 ") + bold;
    EXPECT_EQ(
        Written(),
        HeadOf("Version 10") +
            LinesOf("New set;/sets/new.dkf;/out/;False;;;False;False; 0 ;False; 12632256 ;") + fonts +
            LinesOf(
                " 0 ; 0 ; 0 ; 1 ;CARD 1; 1 ;ENEMY-;Animal;-ENEMY;Animal;False; 0 ;2;True;; 0 ; 105 ; 0 ;") +
            LinesOf(
                "True;False;;;;; 1 ; 16777215 ;; 0 ; 0 ; 1 ;ENEMY-;-ENEMY;Animal;Animal; 2 ;;-- END --;"));
}

TEST_F(SetFileTest, EveryKindOfRecordSurvivesARoundTrip)
{
    Set.CardTypeCount = 16;
    Set.CardTypes.Resize(16);
    Set.CardTypes[16] = {
        .Name = QStringLiteral("QUEST"), .SubName = {}, .ReversedName = {}, .ReversedSubName = {}};
    Set.CardBackCount = 28;
    Set.CardBacks.Resize(28);
    Set.CardBacks[28].Picture = QStringLiteral("C:\\own.bmp");
    Set.Cards[1].TypeIndex = -1;
    Set.Cards[1].PictureLeft = -12.25;
    Set.Cards[1].Info = QStringLiteral("one\r\ntwo\rstill two\r\n");
    AddElement(Set, LargeKind);
    AddElement(Set, CharacterKind);
    Set.Characters[1].PlayingPieceLeft = 30;
    AddElement(Set, NewBackKind);
    const QByteArray first = Written();
    EXPECT_TRUE(first.contains("\r\none|two\rstill two|\r\n"));

    Set = {};
    InitSet(Set);
    ASSERT_TRUE(Read(first));
    EXPECT_EQ(Set.Cards[1].Info, QStringLiteral("one\r\ntwo\rstill two\r\n"));
    EXPECT_EQ(Set.Cards[1].PictureLeft, -12.25);
    EXPECT_EQ(Set.Characters[1].PlayingPieceLeft, 30);
    EXPECT_EQ(Written(), first);
}

TEST_F(SetFileTest, AFileOfVersionOneBecomesACurrentSet)
{
    ASSERT_TRUE(Read(VersionOne("SPELL", "0")));
    const Card& card = Set.Cards[1];
    EXPECT_EQ(card.TypeReversed, QStringLiteral("SPELL"));
    EXPECT_EQ(card.TypeIndex, 0);
    EXPECT_EQ(card.Copies, 1);
    EXPECT_EQ(card.FrameHeight, 104) << "halves go to the even neighbour";
    EXPECT_EQ(card.PictureTop, -150);
    EXPECT_EQ(card.Info, QStringLiteral("Line one\r\nline two"));
    EXPECT_EQ(Set.Header.SaveFormat, 0);
    EXPECT_EQ(Set.Header.ArtistColor, 0xC0C0C0);
    EXPECT_EQ(Set.Header.FontAutonumber.Name, QStringLiteral("Lettering"));
    EXPECT_EQ(Set.Header.FontPlayingPiece.Name, QStringLiteral("Small Fonts"))
        << "not in the file, so not reset";
    EXPECT_EQ(Set.LastTypeReversed, QStringLiteral("SPELL"));
    EXPECT_EQ(Set.LastSubType, QString());
    EXPECT_EQ(Set.LastNumber, 2);
    EXPECT_EQ(
        User.BoxTexts(),
        (std::vector<QString>{QStringLiteral("Converting|The set you are opening is of an older version.\r\n"
                                             "It will now be converted to the new version."),
                              QStringLiteral("Open file|The card set is loaded.")}));
}

TEST_F(SetFileTest, OldTypesAreFoundByTheirRowOrElseByTheirText)
{
    struct Case {
        const char* Text;
        const char* Row;
        const char* Type;
        const char* SubType;
    };
    for (const Case& c :
         {Case{"anything", "3", "ENEMY-", "Dragon"}, Case{"ENEMY-Animal", "0", "ENEMY-", "Animal"},
          Case{"EVENT-Law", "0", "EVENT", ""}, Case{"event", "0", "event", ""},
          Case{"SPELL", "-1", "SPELL", ""}, Case{"ENEMY-Animal", "16", "ENEMY-Animal", ""}}) {
        ASSERT_TRUE(Read(VersionOne(c.Text, c.Row)));
        EXPECT_EQ(Set.Cards[1].Type, QString::fromLatin1(c.Type)) << c.Text << c.Row;
        EXPECT_EQ(Set.Cards[1].SubType, QString::fromLatin1(c.SubType)) << c.Text << c.Row;
    }
}

TEST_F(SetFileTest, OldCountsHoldTheBuiltInRowsToo)
{
    QByteArray bytes = VersionOne("SPELL", "13", "16");
    bytes.replace("\r\n16\r\n27\r\n", "\r\n16\r\nQUEST\r\nTSEUQ\r\n7\r\nFalse\r\n27\r\n");
    ASSERT_TRUE(Read(bytes));
    EXPECT_EQ(Set.CardTypeCount, 16);
    EXPECT_EQ(Set.CardTypes[16].ReversedName, QStringLiteral("TSEUQ"));

    ASSERT_TRUE(Read(VersionOne("SPELL", "13", "15")));
    EXPECT_EQ(Set.CardTypeCount, 16) << "rows of the set before stay when the file has none";
}

TEST_F(SetFileTest, WhatIsNoSetChangesNothing)
{
    EXPECT_FALSE(Read("amber gnome - Varnhelm Deck Foundry\r\nVersion 10\r\n"));
    EXPECT_EQ(User.BoxTexts().back(), QStringLiteral("Open File Error|This is not a correct card set file."));
    EXPECT_FALSE(Read(HeadOf("Version 11")));
    EXPECT_EQ(User.BoxTexts().back(),
              QStringLiteral("Version conflict|The set you are opening is from a newer "
                             "version.\r\nIt can not be opened in this version."));
    EXPECT_FALSE(Read(HeadOf("Version10")));
    EXPECT_EQ(User.BoxTexts().back(), ReadFailure + QStringLiteral("13, Type mismatch"));
    EXPECT_FALSE(ReadDKF(Set, Folder.Path(QStringLiteral("none.dkf")), User));
    EXPECT_EQ(User.BoxTexts().back(), ReadFailure + QStringLiteral("53, File not found"));
    EXPECT_EQ(Set.Header.SetName, QStringLiteral("New set"));
}

TEST_F(SetFileTest, AFileCutAtAnyLineIsToldAndNeverTaken)
{
    const QByteArray whole = Written();
    for (qsizetype end = whole.indexOf("\r\n"); end >= 0 && end + 2 < whole.size();
         end = whole.indexOf("\r\n", end + 1)) {
        EXPECT_FALSE(Read(whole.first(end + 2)));
        EXPECT_EQ(User.BoxTexts().back(), ReadFailure + QStringLiteral("62, Input past end of file"));
    }
}

TEST_F(SetFileTest, AnotherLineInPlaceOfTheEndIsToldAndTheSetIsRead)
{
    QByteArray bytes = Written();
    bytes.replace("-- END --", "-- end --");
    EXPECT_TRUE(Read(bytes));
    EXPECT_EQ(User.BoxTexts(), (std::vector<QString>{QStringLiteral("Error|No final match!"),
                                                     QStringLiteral("Open file|The card set is loaded.")}));
    EXPECT_EQ(User.Boxes[0].Style, BoxStyle::Question);
}

TEST_F(SetFileTest, CountsThatCannotBeAreToldInBoundedTime)
{
    const QByteArray whole = Written();
    const QByteArray counts = "\r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n";
    ASSERT_TRUE(whole.contains(counts));
    const auto readWith = [&](const char* count) {
        QByteArray bytes = whole;
        bytes.replace(counts, QByteArray("\r\n 0 \r\n 0 \r\n 0 \r\n") + count + "\r\n");
        EXPECT_FALSE(Read(bytes));
        return User.BoxTexts().back();
    };
    EXPECT_EQ(readWith(" 1000000000 "), ReadFailure + QStringLiteral("6, Overflow"));
    EXPECT_EQ(readWith("-2 "), ReadFailure + QStringLiteral("9, Subscript out of range"));
    EXPECT_EQ(readWith(" 32767 "), ReadFailure + QStringLiteral("13, Type mismatch"));
}

TEST_F(SetFileTest, ALineThatIsTooLongIsNeitherReadNorWritten)
{
    constexpr qsizetype longest = 1 << 16;
    Set.Cards[1].Info = QStringLiteral("\r\n").repeated(longest);
    Set.Cards[1].Title = QString(longest, QLatin1Char('x'));
    const QByteArray whole = Written();
    EXPECT_TRUE(Read(whole));
    EXPECT_EQ(Set.Cards[1].Info.size(), 2 * longest);

    EXPECT_FALSE(Read(QByteArray(whole).replace("xx\r", "xxx\r")));
    EXPECT_TRUE(User.BoxTexts().back().startsWith(ReadFailure + QStringLiteral("6, A line")));
    for (QString* text : {&Set.Cards[1].Info, &Set.Cards[1].Title}) {
        const QString before = *text;
        *text += QStringLiteral("\r\n\r\nx").right(text == &Set.Cards[1].Title ? 1 : 2);
        EXPECT_FALSE(WriteDKF(Set, Folder.Path(QStringLiteral("written.dkf")), User, Report::Silent));
        EXPECT_TRUE(User.LastBox().Text.contains(QStringLiteral("\r\n\r\n6, A line")));
        *text = before;
    }
    Set.Cards[1].Title += QLatin1Char('x');
    EXPECT_EQ(SetFileBytes(Set, Unwritable::Mend).size(), whole.size()) << "cut";
}

TEST_F(SetFileTest, OldTypesAreFoundInTheLargestTablesInBoundedTime)
{
    constexpr int rows = 32000; // of types, and as many cards
    QByteArray bytes = VersionOne("SPELL", "0", QByteArray::number(rows + 15));
    QByteArray types;
    QByteArray cards;
    for (int i = 1; i <= rows; ++i)
        types += LinesOf("aaaaaaaaaaaa" + QByteArray::number(i) + ";;1;False;");
    const qsizetype cardStart = bytes.indexOf("Bear");
    const QByteArray card =
        bytes.mid(cardStart, bytes.indexOf("3\r\n16777215") - cardStart) + "3\r\n16777215\r\n\r\n";
    for (int i = 1; i <= rows; ++i)
        cards += QByteArray(card).replace("SPELL", "aaaaaaaaaaaaaaaaaaaaaaaa" +
                                                       QByteArray::number(i % 7 == 0 ? i : 0));
    bytes.replace("27\r\n1\r\n", types + "27\r\n" + QByteArray::number(rows) + "\r\n");
    bytes.replace(bytes.indexOf("Bear"), card.size(), cards);
    QElapsedTimer timer;
    timer.start();
    ASSERT_TRUE(Read(bytes));
    EXPECT_LT(timer.elapsed(), 15000) << "under a sanitizer";
    EXPECT_EQ(Set.Cards[6].Type, QStringLiteral("aaaaaaaaaaaaaaaaaaaaaaaa0")) << "as read";
    EXPECT_EQ(Set.Cards[7].Type, QStringLiteral("aaaaaaaaaaaa7"));
    EXPECT_EQ(Set.Cards[28].Type, QStringLiteral("aaaaaaaaaaaa2"))
        << "the first that occurs, not the longest";
}

TEST_F(SetFileTest, SavingAsksEveryTimeAndThePathStandsInTheFile)
{
    const QString path = Folder.Path(QStringLiteral("chosen.dkf"));
    User.WillChoose(path);
    SaveSet(Set, User);
    EXPECT_TRUE(Folder.Read(QStringLiteral("chosen.dkf")).contains(path.toUtf8()));
    EXPECT_EQ(User.BoxTexts(), std::vector<QString>{QStringLiteral("Save file|The card set is saved.")});
    User.WillCancelDialog();
    SaveSet(Set, User);
    ASSERT_EQ(User.SaveDialogs.size(), 2U);
    EXPECT_EQ(User.SaveDialogs[1].FileName, path);
    EXPECT_EQ(User.SaveDialogs[1].Title, QStringLiteral("Save Card Set"));
    EXPECT_EQ(User.Boxes.size(), 1U);
}

TEST_F(SetFileTest, AFailedWriteLeavesTheOldSetBesideTheFile)
{
    const QString path = Folder.Path(QStringLiteral("written.dkf"));
    const QByteArray old = Written();
    EXPECT_FALSE(Folder.Has(QStringLiteral("written.dkf~"))) << "a good write leaves no copy";

    Set.Header.SetName = QStringLiteral("Changed");
    Set.Cards[1].Info = QStringLiteral("Łódź");
    EXPECT_FALSE(WriteDKF(Set, path, User, Report::Tell));
    EXPECT_EQ(User.LastBox().Title, QStringLiteral("Error"));
    EXPECT_EQ(User.LastBox().Style, BoxStyle::Critical);
    EXPECT_TRUE(
        User.LastBox().Text.startsWith(QStringLiteral("The file is NOT saved due to an error.\r\n\r\n5, ")));
    EXPECT_TRUE(User.LastBox().Text.contains(QStringLiteral("Ł")));
    EXPECT_TRUE(Folder.Read(QStringLiteral("written.dkf")).endsWith("True\r\nFalse\r\n\r\n\r\n"))
        << "what had been written stays, up to the line that failed";
    EXPECT_EQ(Folder.Read(QStringLiteral("written.dkf~")), old);

    EXPECT_FALSE(WriteDKF(Set, path, User, Report::Tell));
    EXPECT_EQ(Folder.Read(QStringLiteral("written.dkf~")), old)
        << "the rest of a write is no set worth a copy";

    Set.Cards[1].Info.clear();
    EXPECT_TRUE(WriteDKF(Set, path, User, Report::Tell));
    EXPECT_FALSE(Folder.Has(QStringLiteral("written.dkf~")));
}

TEST_F(SetFileTest, OnlyACopyOfAWholeSetIsKeptBeforeAnotherAndOnlyTheProgramsOwnGoes)
{
    // The reader takes a file without its last line end, so it is worth a copy, whatever has the copy's name.
    const QString path = Folder.Path(QStringLiteral("written.dkf"));
    QByteArray old = Written();
    old.chop(2);
    Folder.Write(QStringLiteral("written.dkf"), old);
    Folder.Write(QStringLiteral("written.dkf~"), "notes of somebody");
    Set.Cards[1].Title = QStringLiteral("ж");
    EXPECT_FALSE(WriteDKF(Set, path, User, Report::Tell));
    EXPECT_EQ(Folder.Read(QStringLiteral("written.dkf~")), old);

    Set.Cards[1].Title.clear();
    Folder.Write(QStringLiteral("new.dkf~"), "notes of somebody");
    EXPECT_TRUE(WriteDKF(Set, Folder.Path(QStringLiteral("new.dkf")), User, Report::Silent));
    EXPECT_TRUE(Folder.Has(QStringLiteral("new.dkf~")));
}

TEST_F(SetFileTest, ATextOfTwoLinesCannotBreakTheLinesOfTheFile)
{
    Set.Cards[1].Title = QStringLiteral("two\r\nlines");
    EXPECT_FALSE(WriteDKF(Set, Folder.Path(QStringLiteral("written.dkf")), User, Report::Tell));
}

TEST_F(SetFileTest, FoldersNamedInAnyLanguageAreSavedAndReadAgain)
{
    Set.Header.SaveTo = QStringLiteral("/home/иван/Документы/100%/");
    Set.Header.FileName = QStringLiteral("/home/иван/набор.dkf");
    Set.Cards[1].Picture = QStringLiteral("/data/Ελλάδα/two\r\nlines.bmp");
    Set.Cards[1].Background = QStringLiteral("/home/josé/bär €.bmp"); // in the code page, so as it stands
    Set.LastBackground = QStringLiteral("file:///home/%41.bmp");      // looks like an address, and is none
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

} // namespace deckforge
