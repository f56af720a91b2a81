// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/WindowTest.h"

namespace deckforge {

class frmQDWTest : public WindowTest {};

TEST_F(frmQDWTest, OpeningASetDoesNotChangeItsRecords)
{
    OpenChangedSet([](CardSet& set) {
        set.Header.SetName = "Caves";
        set.Header.NoBack = true;
        AddElement<Card>(set);
        set.Cards[1].Info = "One\r\n\u00A0two  ";
        Card& odd = set.Cards[2]; // with values that no control can hold
        odd.Info = "a\nb\rc";
        odd.Copies = -7;
        odd.CardBack = 0;
        odd.Number = "many";
        odd.TypeIndex = 9;
    });
    EXPECT_EQ(window.windowTitle(), "Caves - Varnhelm Deck Forge");
    EXPECT_FALSE(Preview().picBack.Visible);
    EXPECT_EQ(user.LastBox().Text, "The card set is loaded.");
    const QByteArray before = SetFileBytes(Set(), Unwritable::Fail);
    Slide("hsbCard", 2);
    EXPECT_EQ(Text("cboNumber"), "many");
    Slide("hsbCard", 1);
    EXPECT_EQ(SetFileBytes(Set(), Unwritable::Fail), before);
}

TEST_F(frmQDWTest, TypedTextUpdatesThePreviewAndCompletesAttributes)
{
    Type("txtTitle", "Sword & Shield");
    EXPECT_EQ(Preview().lblTitle.Caption, "Sword & Shield");
    QTest::keyClicks(&Find<QPlainTextEdit>("txtInfo"), "a\rb");
    EXPECT_EQ(FirstCard().Info, "a\r\nb");
    Type("txtArtist", "A. Painter");
    EXPECT_TRUE(Preview().picArtistDest.Visible);
    Find<QLineEdit>("txtTitle").setText("one\r\ntwo\nthree");
    EXPECT_EQ(FirstCard().Title, "one two three") << "a line takes pasted line breaks as blanks";

    const int emptyTop = Preview().lblInformation.Top;
    Type("txtBold", "S");
    EXPECT_EQ(FirstCard().BoldText, "STRENGTH ");
    EXPECT_EQ(Preview().lblInformation.Top, emptyTop + 11);
    QTest::keyClicks(&Find<QLineEdit>("txtBold"), "pell");
    EXPECT_EQ(FirstCard().BoldText, "Spell");
    Type("txtBold", "s");
    EXPECT_EQ(FirstCard().BoldText, "s");
}

TEST_F(frmQDWTest, ANewCardFocusesItsTitleAndDeletingTheLastSelectsTheOneBefore)
{
    window.show();
    window.activateWindow();
    Click("cmdCardAdd");
    QTest::keyClicks(&Find<QLineEdit>("txtTitle"), "Imp");
    Click("cmdCardAdd");
    user.WillAnswer(Answer::Yes);
    Click("cmdCardDelete");
    EXPECT_EQ(user.LastBox().Text, "Are you sure you want to delete the card \"CARD 3\"?");
    EXPECT_EQ(Text({"lblCurrentCard", "hsbCard", "txtTitle"}), "2 (2)|2 (2)|Imp");
}

TEST_F(frmQDWTest, ANewSetAsksFirstAndKeepsTheSavedOne)
{
    window.Start(folder.Path("none.dkf"));
    EXPECT_EQ(user.LastBox().Style, BoxStyle::Critical);
    EXPECT_EQ(window.windowTitle(), "New set - Varnhelm Deck Forge") << "the new one stays";
    Click("cmdCardAdd");
    Type("txtSetname", "Old");
    user.WillAnswer(Answer::Yes);
    user.WillChoose(folder.Path("old.dkf"));
    Run("new");
    EXPECT_EQ(user.BoxTexts()[1], "Save...|Save current set?");
    EXPECT_EQ(user.Boxes[1].Buttons, BoxButtons::YesNo);
    EXPECT_EQ(window.windowTitle(), "New set - Varnhelm Deck Forge");
    EXPECT_EQ(Text({"lblCurrentCard", "hsbCard", "txtTitle"}), "1 (1)|1 (1)|CARD 1");
    window.Start(folder.Path("old.dkf"));
    EXPECT_EQ(Text({"lblCurrentCard", "txtSetname"}), "1 (2)|Old");
}

TEST_F(frmQDWTest, CopiedCardIsPastedIntoAnotherSet)
{
    Run("paste");
    EXPECT_TRUE(user.Boxes.empty()) << user.LastMessageText().toStdString();
    EXPECT_EQ(Text("txtTitle"), "") << "nothing was copied yet";
    Type("txtTitle", "Imp");
    Run("copy");
    EXPECT_EQ(user.BoxTexts(), QStringList("Copy|The card is copied."));
    OpenChangedSet([](CardSet& set) { AddElement<Card>(set), set.Cards[1].Title = "Troll"; });
    Slide("hsbCard", 2);
    Run("paste");
    EXPECT_EQ(Text("txtTitle"), "Imp");
    EXPECT_EQ(Set().Cards[2].Title, "Imp");
    EXPECT_EQ(FirstCard().Title, "Troll");
    EXPECT_EQ(Set().Cards.Count(), 2);
}

} // namespace deckforge
