#include "editor/WindowTest.h"

namespace deckforge {

class frmQDWTest : public WindowTest {};

TEST_F(frmQDWTest, OpenedSetFillsFieldsAndTitleAndStaysAsItIs)
{
    OpenChangedSet([](CardSet& set) {
        set.Header.SetName = "Caves";
        set.Header.NoBack = true;
        set.Header.SaveFormat = 2;
        AddElement<Card>(set);
        Card& card = set.Cards[1];
        card.Title = "Troll";
        card.BoldText = "STRENGTH 6";
        card.Info = "One\r\n\u00A0two  ";
        card.Picture = "C:\\cards\\troll.bmp";
        card.Artist = "A. Painter";
        card.Frame = false;
        Card& odd = set.Cards[2]; // in values that no control holds
        odd.Info = "a\nb\rc";
        odd.Copies = -7;
        odd.CardBack = 0;
        odd.Number = "many";
        odd.TypeIndex = 9;
    });
    EXPECT_EQ(window.windowTitle(), "Caves - Varnhelm Deck Forge");
    EXPECT_EQ(Text({"txtTitle", "txtBold", "txtPicture", "lblCurrentCard"}),
              "Troll|STRENGTH 6|troll.bmp|1 (2)");
    EXPECT_EQ(Find<QPlainTextEdit>("txtInfo").blockCount(), 2);
    EXPECT_FALSE(Find<QCheckBox>("chkFrame").isChecked());
    EXPECT_FALSE(Preview().picBack.Visible);
    EXPECT_EQ(user.LastBox().Text, "The card set is loaded.");

    Slide("hsbCard", 2);
    EXPECT_EQ(Text("cboNumber"), "many");
    Slide("hsbCard", 1);
    EXPECT_EQ(FirstCard().Info, "One\r\n\u00A0two  ");
    EXPECT_EQ(FirstCard().Artist, "A. Painter");
    const Card& odd = Set().Cards[2];
    EXPECT_EQ(odd.Info + odd.Artist, "a\nb\rc");
    EXPECT_EQ(std::tuple(odd.Copies, odd.CardBack, odd.TypeIndex), std::tuple(-7, 0, 9));
}

TEST_F(frmQDWTest, TypedTextGoesToRecordAndPreviewAndCompletesAttributes)
{
    Type("txtTitle", "Sword & Shield");
    auto& txtInfo = Find<QPlainTextEdit>("txtInfo");
    QTest::keyClick(&txtInfo, 'a');
    QTest::keyClick(&txtInfo, Qt::Key_Return);
    QTest::keyClick(&txtInfo, 'b');
    Type("txtArtist", "A. Painter");
    Type("txtSetname", "Mine");
    EXPECT_EQ(FirstCard().Title, "Sword & Shield");
    EXPECT_EQ(Preview().lblTitle.Caption, "Sword & Shield");
    EXPECT_EQ(FirstCard().Info, "a\r\nb");
    EXPECT_EQ(FirstCard().Artist, "A. Painter");
    EXPECT_TRUE(Preview().picArtistDest.Visible);
    EXPECT_EQ(Set().Header.SetName, "Mine");
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

TEST_F(frmQDWTest, SlidersTellOfTheNextElementBeforeItIsShown)
{
    const auto drag = [&](const char* name, int place) {
        Find<QScrollBar>(name).setSliderDown(true);
        Find<QScrollBar>(name).setSliderPosition(place);
    };
    Click("cmdCardAdd");
    drag("hsbCard", 1);
    EXPECT_EQ(Text({"lblCurrentCard", "lblCardTitle"}), "1 (2)|CARD 1 (ENEMY- Animal)");
    EXPECT_EQ(Set().Cards.Current, 2);
    Find<QScrollBar>("hsbCard").setSliderDown(false);
    EXPECT_EQ(Set().Cards.Current, 1);
    EXPECT_EQ(Text({"lblCardTitle", "txtTitle"}), "|CARD 1");

    SelectTab(2);
    Click("cmdCardAddLarge");
    drag("hsbCardLarge", 1);
    EXPECT_EQ(Text({"lblCurrentCardLarge", "lblCardTitleLarge"}), "2 (2)|");
    SelectTab(3);
    Click("cmdCharacterAdd");
    drag("hsbCharacter", 1);
    EXPECT_EQ(Text({"lblCurrentCardCharacter", "lblChar"}), "1 (2)|CHARACTER 1");
    SelectTab(4);
    Click("cmdNewCardBackAdd");
    drag("hsbNewCardBack", 1);
    EXPECT_EQ(Text("lblCurrentNewCardBack"), "1 (2)");
}

TEST_F(frmQDWTest, NewCardTakesTheNextKeysAsItsTitleAndALastOneGivesWayToTheOneBefore)
{
    window.show();
    window.activateWindow();
    Click("cmdCardAdd");
    QTest::keyClicks(&Find<QLineEdit>("txtTitle"), "Imp");
    EXPECT_EQ(Set().Cards[2].Title, "Imp");
    EXPECT_EQ(FirstCard().Title, "CARD 1");
    EXPECT_EQ(Text({"lblCurrentCard", "hsbCard"}), "2 (2)|2 (2)");
    Click("cmdCardAdd");
    user.WillAnswer(Answer::Yes);
    Click("cmdCardDelete");
    EXPECT_EQ(user.LastBox().Text, "Are you sure you want to delete the card \"CARD 3\"?");
    EXPECT_EQ(Text({"lblCurrentCard", "hsbCard", "txtTitle"}), "2 (2)|2 (2)|Imp");
}

TEST_F(frmQDWTest, NewSetComesAfterItsQuestionAndKeepsTheSavedOne)
{
    window.Start(folder.Path("none.dkf"));
    EXPECT_EQ(user.LastBox().Style, BoxStyle::Critical);
    EXPECT_EQ(window.windowTitle(), "New set - Varnhelm Deck Forge")
        << "what cannot be read leaves the new one";
    EXPECT_EQ(Text("txtTitle"), "CARD 1");
    user.Boxes.clear();

    const QString path = folder.Path("old.dkf");
    Click("cmdCardAdd");
    Type("txtSetname", "Old");
    user.WillAnswer(Answer::Yes);
    user.WillChoose(path);
    Run("new");
    EXPECT_EQ(user.BoxTexts().front(), "Save...|Save current set?");
    EXPECT_EQ(user.Boxes.front().Buttons, BoxButtons::YesNo);
    EXPECT_EQ(window.windowTitle(), "New set - Varnhelm Deck Forge");
    EXPECT_EQ(Text({"lblCurrentCard", "hsbCard", "txtTitle"}), "1 (1)|1 (1)|CARD 1");
    window.Start(path);
    EXPECT_EQ(Text({"lblCurrentCard", "txtSetname"}), "1 (2)|Old");
}

TEST_F(frmQDWTest, CopiedCardIsPastedIntoAnotherSet)
{
    Run("paste");
    EXPECT_TRUE(user.Boxes.empty()) << user.LastTold().toStdString();
    EXPECT_EQ(Text("txtTitle"), "") << "nothing was copied yet";
    EXPECT_EQ(FirstCard().CardBack, 0);
    Type("txtTitle", "Imp");
    Type("txtArtist", "A. Painter");
    Run("copy");
    EXPECT_EQ(user.BoxTexts(), QStringList("Copy|The card is copied."));
    Type("txtTitle", "Troll");
    user.WillAnswer(Answer::No);
    Run("new");
    OpenChangedSet([](CardSet& set) { AddElement<Card>(set); });
    Slide("hsbCard", 2);
    Run("paste");
    EXPECT_EQ(Text({"txtTitle", "txtArtist"}), "Imp|A. Painter");
    EXPECT_EQ(Set().Cards[2].Title, "Imp");
    EXPECT_EQ(FirstCard().Title, "CARD 1");
    EXPECT_EQ(Set().Cards.Count(), 2);
}

TEST_F(frmQDWTest, HelpAnswersWhateverModifierIsHeld)
{
    window.show();
    window.activateWindow();
    for (const Qt::KeyboardModifiers held : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
        user.Boxes.clear();
        QTest::keyClick(&Find<QPlainTextEdit>("txtInfo"), Qt::Key_F1, held);
        EXPECT_EQ(user.LastTold(), "Help|This is a very small help.\r\n"
                                   "\r\n"
                                   "Shortcuts\r\n"
                                   "  Ctrl-S - Save card set\r\n"
                                   "  Ctrl-O - Open card set\r\n"
                                   "  Ctrl-N - New card\r\n"
                                   "  Ctrl-, - Previous card\r\n"
                                   "  Ctrl-. - Next card\r\n"
                                   "\r\n"
                                   "Click on a picture and nudge it with arrow keys.\r\n"
                                   "Change frame size with shift+arrow keys.");
    }
}

TEST_F(frmQDWTest, BackgroundTellsTheVersionAndTheCardDoesNot)
{
    window.resize(1000, 800);
    window.show();
    const auto doubleClick = [&](const QWidget& control, QPoint point) {
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, control.mapTo(&window, point));
    };
    doubleClick(View(), PointOn(Preview().lblWatermark));
    doubleClick(Find<QLabel>("lblCurrentCard"), {2, 2});
    EXPECT_TRUE(user.Boxes.empty());
    doubleClick(View(), {2, -4});
    EXPECT_EQ(user.BoxTexts(), QStringList("Hello!|Version 1.7.4"));
}

} // namespace deckforge
