#include "dialogs/frmCardSheet.h"
#include "editor/WindowTest.h"

#include <QApplication>
#include <QTimer>

namespace deckforge {

namespace {

class frmQDWTest : public WindowTest {};

TEST_F(frmQDWTest, OpenedSetFillsFieldsAndTitle)
{
    OpenChangedSet([](CardSet& set) {
        set.Header.SetName = QStringLiteral("Caves");
        set.Header.NoBack = true;
        set.Header.SaveFormat = 2;
        AddElement(set, StandardKind);
        Card& card = set.Cards[1];
        card.Title = QStringLiteral("Troll");
        card.BoldText = QStringLiteral("STRENGTH 6");
        card.Info = QStringLiteral("One\r\n\u00A0two");
        card.Picture = QStringLiteral("C:\\cards\\troll.bmp");
        card.Frame = false;
    });
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Caves - Varnhelm Deck Forge"));
    EXPECT_EQ(Text("txtTitle"), QStringLiteral("Troll"));
    EXPECT_EQ(Text("txtBold"), QStringLiteral("STRENGTH 6"));
    EXPECT_EQ(Find<QPlainTextEdit>("txtInfo").blockCount(), 2);
    EXPECT_EQ(Text("txtPicture"), QStringLiteral("troll.bmp"));
    EXPECT_FALSE(Find<QCheckBox>("chkFrame").isChecked());
    EXPECT_FALSE(Preview().picBack.Visible);
    EXPECT_EQ(Position(), QStringLiteral("1 (2)"));
    EXPECT_EQ(user.LastBox().Text, QStringLiteral("The card set is loaded."));
}

TEST_F(frmQDWTest, ShowingCardsLeavesTheirTextsAsTheyWere)
{
    const QString info = QStringLiteral("One\r\n\u00A0two  ");
    OpenChangedSet([&](CardSet& set) {
        AddElement(set, StandardKind);
        set.Cards[1].Info = info;
        set.Cards[1].Artist = QStringLiteral("A. Painter");
    });
    Find<QScrollBar>("hsbCard").setValue(2);
    Find<QScrollBar>("hsbCard").setValue(1);
    EXPECT_EQ(Set().Cards[1].Info, info);
    EXPECT_EQ(Set().Cards[1].Artist, QStringLiteral("A. Painter"));
    EXPECT_EQ(Set().Cards[2].Info, QString());
    EXPECT_EQ(Set().Cards[2].Artist, QString());
}

TEST_F(frmQDWTest, UnreadableSetLeavesTheNewOne)
{
    window.Start(folder.Path(QStringLiteral("none.dkf")));
    EXPECT_EQ(user.LastBox().Style, BoxStyle::Critical);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("New set - Varnhelm Deck Forge"));
    EXPECT_EQ(Text("txtTitle"), QStringLiteral("CARD 1"));
}

TEST_F(frmQDWTest, TypedTextGoesToRecordAndPreview)
{
    Type("txtTitle", QStringLiteral("Sword & Shield"));
    auto& txtInfo = Find<QPlainTextEdit>("txtInfo");
    QTest::keyClick(&txtInfo, 'a');
    QTest::keyClick(&txtInfo, Qt::Key_Return);
    QTest::keyClick(&txtInfo, 'b');
    Type("txtArtist", QStringLiteral("A. Painter"));
    Type("txtSetname", QStringLiteral("Mine"));
    EXPECT_EQ(Set().Cards[1].Title, QStringLiteral("Sword & Shield"));
    EXPECT_EQ(Preview().lblTitle.Caption, QStringLiteral("Sword & Shield"));
    EXPECT_EQ(Set().Cards[1].Info, QStringLiteral("a\r\nb"));
    EXPECT_EQ(Set().Cards[1].Artist, QStringLiteral("A. Painter"));
    EXPECT_TRUE(Preview().picArtistDest.Visible);
    EXPECT_EQ(Set().Header.SetName, QStringLiteral("Mine"));
}

TEST_F(frmQDWTest, FirstLetterOfAttributeIsCompletedAndTypedOver)
{
    const int emptyTop = Preview().lblInformation.Top;
    Type("txtBold", QStringLiteral("S"));
    EXPECT_EQ(Set().Cards[1].BoldText, QStringLiteral("STRENGTH "));
    EXPECT_EQ(Preview().lblInformation.Top, emptyTop + 11);
    QTest::keyClicks(&Find<QLineEdit>("txtBold"), QStringLiteral("pell"));
    EXPECT_EQ(Set().Cards[1].BoldText, QStringLiteral("Spell"));
    Type("txtBold", QStringLiteral("s"));
    EXPECT_EQ(Set().Cards[1].BoldText, QStringLiteral("s"));
}

TEST_F(frmQDWTest, TextsMoveUpWhereThePictureIsHidden)
{
    const int top = Preview().lblBold.Top;
    Find<QCheckBox>("chkShowPicture").click();
    EXPECT_FALSE(Set().Cards[1].ShowPicture);
    EXPECT_EQ(Preview().lblBold.Top, 28 + 13 + 3);
    Find<QCheckBox>("chkShowPicture").click();
    EXPECT_EQ(Preview().lblBold.Top, top);
}

TEST_F(frmQDWTest, SliderTellsOfTheCardBeforeItIsShown)
{
    Click("cmdCardAdd");
    auto& slider = Find<QScrollBar>("hsbCard");
    slider.setSliderDown(true);
    slider.setSliderPosition(1);
    EXPECT_EQ(Position(), QStringLiteral("1 (2)"));
    EXPECT_EQ(Find<QLabel>("lblCardTitle").text(), QStringLiteral("CARD 1 (ENEMY- Animal)"));
    EXPECT_EQ(Set().CurrentCard, 2);
    slider.setSliderDown(false);
    EXPECT_EQ(Set().CurrentCard, 1);
    EXPECT_EQ(Find<QLabel>("lblCardTitle").text(), QString());
    EXPECT_EQ(Text("txtTitle"), QStringLiteral("CARD 1"));
}

TEST_F(frmQDWTest, NewCardTakesTheNextKeysAsItsTitle)
{
    window.show();
    window.activateWindow();
    Click("cmdCardAdd");
    QTest::keyClicks(&Find<QLineEdit>("txtTitle"), QStringLiteral("Imp"));
    EXPECT_EQ(Set().Cards[2].Title, QStringLiteral("Imp"));
    EXPECT_EQ(Set().Cards[1].Title, QStringLiteral("CARD 1"));
    EXPECT_EQ(Position(), QStringLiteral("2 (2)"));
    EXPECT_EQ(Find<QScrollBar>("hsbCard").value(), 2);
}

TEST_F(frmQDWTest, LastCardOfThreeGivesWayToTheOneBeforeIt)
{
    Click("cmdCardAdd");
    Click("cmdCardAdd");
    user.WillAnswer(Answer::Yes);
    Click("cmdCardDelete");
    EXPECT_EQ(user.LastBox().Text, QStringLiteral("Are you sure you want to delete the card \"CARD 3\"?"));
    EXPECT_EQ(Position(), QStringLiteral("2 (2)"));
    EXPECT_EQ(Text("txtTitle"), QStringLiteral("CARD 2"));
    EXPECT_EQ(Find<QScrollBar>("hsbCard").maximum(), 2);
}

TEST_F(frmQDWTest, OnlyCardStays)
{
    Click("cmdCardDelete");
    EXPECT_EQ(user.LastBox().Text,
              QStringLiteral("You have only one card in your set. This can't be deleted."));
    EXPECT_EQ(Set().CardCount, 1);
}

TEST_F(frmQDWTest, NewSetComesAfterItsQuestionAndKeepsTheSavedOne)
{
    const QString path = folder.Path(QStringLiteral("old.dkf"));
    Click("cmdCardAdd");
    Type("txtSetname", QStringLiteral("Old"));
    user.WillAnswer(Answer::Yes);
    user.WillChoose(path);
    Run("new");
    EXPECT_EQ(user.Boxes.front().Title + user.Boxes.front().Text, QStringLiteral("Save...Save current set?"));
    EXPECT_EQ(user.Boxes.front().Buttons, BoxButtons::YesNo);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("New set - Varnhelm Deck Forge"));
    EXPECT_EQ(Position(), QStringLiteral("1 (1)"));
    EXPECT_EQ(Find<QScrollBar>("hsbCard").maximum(), 1);
    EXPECT_EQ(Text("txtTitle"), QStringLiteral("CARD 1"));
    window.Start(path);
    EXPECT_EQ(Position(), QStringLiteral("1 (2)"));
    EXPECT_EQ(Text("txtSetname"), QStringLiteral("Old"));
}

TEST_F(frmQDWTest, OnlyCancelOfTheQuestionKeepsTheWindowOpen)
{
    window.show();
    user.WillAnswer(Answer::Cancel);
    Run("exit");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(user.LastBox().Buttons, BoxButtons::YesNoCancel);
    user.WillAnswer(Answer::Yes);
    user.WillCancelDialog();
    Run("exit");
    EXPECT_FALSE(window.isVisible());
}

TEST_F(frmQDWTest, CopiedCardIsPastedIntoAnotherSet)
{
    Type("txtTitle", QStringLiteral("Imp"));
    Type("txtArtist", QStringLiteral("A. Painter"));
    Run("copy");
    EXPECT_EQ(user.BoxTexts(), std::vector{QStringLiteral("Copy|The card is copied.")});
    Type("txtTitle", QStringLiteral("Troll"));
    user.WillAnswer(Answer::No);
    Run("new");
    OpenChangedSet([](CardSet& set) { AddElement(set, StandardKind); });
    Find<QScrollBar>("hsbCard").setValue(2);
    Run("paste");
    EXPECT_EQ(Text("txtTitle"), QStringLiteral("Imp"));
    EXPECT_EQ(Text("txtArtist"), QStringLiteral("A. Painter"));
    EXPECT_EQ(Set().Cards[2].Title, QStringLiteral("Imp"));
    EXPECT_EQ(Set().Cards[1].Title, QStringLiteral("CARD 1"));
    EXPECT_EQ(Set().CardCount, 2);
}

TEST_F(frmQDWTest, PasteBeforeAnyCopyEmptiesTheCard)
{
    Run("paste");
    EXPECT_TRUE(user.Boxes.empty()) << user.Boxes.front().Text.toStdString();
    EXPECT_EQ(Text("txtTitle"), QString());
    EXPECT_EQ(Set().Cards[1].CardBack, 0);
}

TEST_F(frmQDWTest, HelpAnswersWhateverModifierIsHeld)
{
    window.show();
    window.activateWindow();
    for (const Qt::KeyboardModifiers held : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
        user.Boxes.clear();
        QTest::keyClick(&Find<QPlainTextEdit>("txtInfo"), Qt::Key_F1, held);
        EXPECT_EQ(user.LastBox().Title, QStringLiteral("Help"));
        EXPECT_EQ(user.LastBox().Text, QStringLiteral("This is a very small help.\r\n"
                                                      "\r\n"
                                                      "Shortcuts\r\n"
                                                      "  Ctrl-S - Save card set\r\n"
                                                      "  Ctrl-O - Open card set\r\n"
                                                      "  Ctrl-N - New card\r\n"
                                                      "  Ctrl-, - Previous card\r\n"
                                                      "  Ctrl-. - Next card\r\n"
                                                      "\r\n"
                                                      "Click on a picture and nudge it with arrow keys.\r\n"
                                                      "Change frame size with shift+arrow keys."));
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
    EXPECT_EQ(user.BoxTexts(), std::vector{QStringLiteral("Hello!|Version 1.7.4")});
}

TEST_F(frmQDWTest, SheetDialogStartsAtTwoByThreeAndFollowsTheKeys)
{
    QString preset;
    QString chosen;
    QTimer::singleShot(0, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog)); // or else the options do not take keys
        const auto* const lblSize = dialog->findChild<QLabel*>(QStringLiteral("lblSize"));
        preset = lblSize->text();
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Tab, Qt::Key_Down})
            QTest::keyClick(dialog->focusWidget(), key);
        chosen = lblSize->text();
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    const std::optional<SheetGrid> grid = AskSheetGrid(false, nullptr);
    EXPECT_EQ(preset, QStringLiteral("768 x 508"));
    EXPECT_EQ(chosen, QStringLiteral("1024 x 254"));
    ASSERT_TRUE(grid.has_value());
    EXPECT_EQ(grid->Cols, 1);
    EXPECT_EQ(grid->Rows, 4);
    EXPECT_EQ(SheetSizeText({.Cols = 1, .Rows = 1}, true), QStringLiteral("256 x 152"));
}

TEST_F(frmQDWTest, EscapeOfTheSheetDialogMakesNoSheet)
{
    QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    Run("createsheet");
    EXPECT_EQ(user.BoxTexts(), std::vector{QStringLiteral("Create cardsheets|0 cardsheets are created.")});
}

} // namespace

} // namespace deckforge
