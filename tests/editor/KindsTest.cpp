// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/WindowTest.h"

#include <QShortcut>

namespace deckforge {

class KindsTest : public WindowTest {
protected:
    void Press(std::initializer_list<QKeySequence> keys)
    {
        for (const QKeySequence& key : keys) {
            for (QShortcut* shortcut : window.findChildren<QShortcut*>()) {
                if (shortcut->key() == key)
                    Q_EMIT shortcut->activated();
            }
        }
    }
};

TEST_F(KindsTest, AfterANewSetNoHiddenControlHasTheFocus)
{
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (const char* box : {"txtCharName", "cboStartArea", "txtSpecialAbilities", "chkShowPlayingPiece"}) {
        SelectTab(3);
        ClickTab(3);
        Find<QWidget>(box).setFocus();
        user.WillAnswer(Answer::No);
        Run("new");
        ASSERT_NE(window.focusWidget(), nullptr) << box;
        EXPECT_TRUE(window.focusWidget()->isVisible()) << box;
        QTest::keyClick(&window, Qt::Key_N, Qt::ControlModifier); // adds a character on this tab
        EXPECT_TRUE(window.focusWidget()->isVisible()) << box;
    }
}

TEST_F(KindsTest, ANewSetUpdatesTheSelectedTabOnlyAtTheNextClick)
{
    SelectTab(4);
    Type("txtNewCardBackName", "Owls");
    SelectTab(3);
    user.WillAnswer(Answer::No);
    Run("new");
    EXPECT_TRUE(Boxes().Standard.picCard.Visible);
    for (const char* command : {"copy", "paste", "createone", "printcard"}) {
        user.Boxes.clear();
        Run(command); // there is no character
        EXPECT_EQ(user.LastBox().Text, "Run-time error '9':\r\n\r\nSubscript out of range");
    }
    ClickTab(3);
    EXPECT_EQ(Set().Characters.Count(), 1);
    EXPECT_TRUE(Boxes().Character.picCharacter.Visible);
    SelectTab(4);
    EXPECT_EQ(Text("txtNewCardBackName"), "Owls");
}

TEST_F(KindsTest, OnlyCancelOrAFailedSaveOrARunKeepsTheWindowOpen)
{
    window.show();
    Type("txtTitle", "Imp");
    for (const char* command : {"new", "exit"}) {
        user.WillAnswer(Answer::Yes);
        user.WillChoose(folder.Path("none/set.dkf"));
        Run(command);
        EXPECT_EQ(user.LastBox().Style, BoxStyle::Critical);
        user.WillAnswer(Answer::Cancel);
        Run(command);
        EXPECT_EQ(FirstCard().Title, "Imp");
        EXPECT_TRUE(window.isVisible());
    }
    EXPECT_EQ(user.LastBox().Buttons, BoxButtons::YesNoCancel);
    window.ShowProgress(1, 3);
    window.close();
    EXPECT_TRUE(window.isVisible()) << "a run is not disturbed";
    window.ShowProgress(3, 3);
    user.WillAnswer(Answer::Yes);
    user.WillCancelDialog();
    Run("exit");
    EXPECT_FALSE(window.isVisible());
}

TEST_F(KindsTest, KeysAndCommandsDependOnTheTab)
{
    const QKeySequence add(Qt::CTRL | Qt::Key_N);
    const QKeySequence previous(Qt::CTRL | Qt::Key_Comma);
    const QKeySequence next(Qt::CTRL | Qt::Key_Period);
    for (const int tab : {1, 2, 3}) {
        SelectTab(tab);
        Press({add});
    }
    EXPECT_EQ(Text({"lblCurrentCardLarge", "txtCharName"}), "2 (2)|CHARACTER 2");
    Press({previous, previous});
    EXPECT_EQ(Text("txtCharName"), "CHARACTER 1");
    Press({next, next});
    SelectTab(4);
    Press({add, previous});
    EXPECT_EQ(Set().NewCardBacks.Count(), 1);
    EXPECT_EQ(Set().Characters.Current, 2);
    Run("copy");
    EXPECT_EQ(user.LastBox().Text, "The character card is copied.");
    SelectTab(3);
    Slide("hsbCharacter", 1);
    Run("paste");
    EXPECT_EQ(Hero().Name, "CHARACTER 2");
}

TEST_F(KindsTest, TheWheelChangesOnlyTheFocusedControl)
{
    for (const char* name : {"cboCardBack", "cboType", "udCopy", "tbCard"})
        TurnWheel(Find<QWidget>(name), -120);
    EXPECT_EQ(FirstCard().CardBack, 1);
    EXPECT_EQ(FirstCard().SubType, "Animal");
    EXPECT_EQ(FirstCard().Copies, 1);
    EXPECT_EQ(Set().LargeCards.Count(), 0);
}

/// For screen readers and keyboard users.
TEST_F(KindsTest, ControlsAreNamedAndTheTabOrderRunsDownOrRight)
{
    window.show();
    for (int tab = 1; tab <= 4; ++tab) {
        SelectTab(tab);
        QWidget* const first = &Find<QTabBar>("tbCard");
        const QWidget* before = nullptr;
        for (QWidget* stop = first->nextInFocusChain(); stop != first; stop = stop->nextInFocusChain()) {
            if (!(stop->focusPolicy() & Qt::TabFocus) || !stop->isVisible() || stop->focusProxy())
                continue;
            const auto* const button = qobject_cast<QAbstractButton*>(stop);
            EXPECT_FALSE(stop->accessibleName().isEmpty() && (!button || button->text().isEmpty()))
                << stop->objectName().toStdString();
            const bool isBeside = before && before->parentWidget() == stop->parentWidget();
            EXPECT_TRUE(!isBeside || stop->geometry().center().y() >= before->geometry().bottom() ||
                        stop->geometry().top() >= before->geometry().bottom() || stop->x() > before->x())
                << tab << stop->objectName().toStdString();
            before = stop;
        }
        EXPECT_NE(before, nullptr);
    }
}

} // namespace deckforge
