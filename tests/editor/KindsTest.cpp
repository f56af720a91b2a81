#include "editor/WindowTest.h"

#include <QShortcut>

namespace deckforge {

namespace {

class KindsTest : public WindowTest {
protected:
    void Press(QKeySequence keys)
    {
        for (QShortcut* shortcut : window.findChildren<QShortcut*>()) {
            if (shortcut->key() == keys)
                Q_EMIT shortcut->activated();
        }
    }
};

TEST_F(KindsTest, TheFirstOfAKindComesWithTheFirstLookAtItsTab)
{
    Click("cmdCardAdd");
    for (int look = 0; look < 2; ++look) {
        SelectTab(2);
        EXPECT_EQ(Text("txtTitleLarge"), QStringLiteral("LARGE CARD 1"));
        EXPECT_EQ(Label("lblCurrentCardLarge"), QStringLiteral("1 (1)"));
        EXPECT_TRUE(Boxes().Large.picCardLarge.Visible);
        SelectTab(3);
        EXPECT_EQ(Text("txtCharName"), QStringLiteral("CHARACTER 1"));
        EXPECT_EQ(Find<QComboBox>("cboStartArea").currentText(), QStringLiteral("VILLAGE"));
        EXPECT_EQ(Find<QComboBox>("cboCharAttr2").currentText(), QStringLiteral("---"));
        SelectTab(4);
        EXPECT_EQ(Text("txtNewCardBackName"), QStringLiteral("Back 1"));
        EXPECT_EQ(Text("txtBackText"), QStringLiteral("New set"));
        EXPECT_TRUE(Boxes().NewBack.picNewBack.Visible);
        SelectTab(1);
        EXPECT_EQ(Position(), QStringLiteral("2 (2)"));
    }
    EXPECT_EQ(Set().LargeCardCount + Set().CharacterCount + Set().NewCardBackCount, 3);
}

TEST_F(KindsTest, ASwitchOfTabComesBackToTheFront)
{
    const LargeCardTemplate& large = Boxes().Large;
    SelectTab(2);
    Click("chkShowBackLarge");
    EXPECT_TRUE(large.picBackLarge.Visible);
    EXPECT_FALSE(large.picCardLarge.Visible);
    const CharacterTemplate& character = Boxes().Character;
    SelectTab(3);
    EXPECT_FALSE(large.picBackLarge.Visible);
    Click("chkShowCharacterBack");
    Click("chkShowPlayingPiece");
    EXPECT_TRUE(Boxes().PlayingPiece.picPlayingPiece.Visible);
    EXPECT_FALSE(character.picCharacterBack.Visible);
    Click("chkShowPlayingPiece");
    EXPECT_TRUE(character.picCharacterBack.Visible);
    EXPECT_FALSE(character.picCharacter.Visible);
    ClickTab(3);
    EXPECT_TRUE(character.picCharacter.Visible);
    EXPECT_FALSE(character.picCharacterBack.Visible);
    EXPECT_FALSE(Find<QCheckBox>("chkShowCharacterBack").isChecked());
}

TEST_F(KindsTest, ANewSetLeavesTheTabAndItsCardsToTheNextClick)
{
    SelectTab(4);
    Type("txtNewCardBackName", QStringLiteral("Owls"));
    SelectTab(3);
    user.WillAnswer(Answer::No);
    Run("new");
    EXPECT_EQ(Find<QTabBar>("tbCard").currentIndex(), 2);
    EXPECT_TRUE(Boxes().Standard.picCard.Visible);
    EXPECT_EQ(Set().CharacterCount, 0);
    for (const char* command : {"copy", "paste", "createone", "printcard"}) {
        user.Boxes.clear();
        Run(command); // there is no character
        EXPECT_EQ(user.LastBox().Text, QStringLiteral("Run-time error '9':\r\n\r\nSubscript out of range"));
    }
    ClickTab(3);
    EXPECT_EQ(Set().CharacterCount, 1);
    EXPECT_TRUE(Boxes().Character.picCharacter.Visible);
    SelectTab(4);
    EXPECT_EQ(Text("txtNewCardBackName"), QStringLiteral("Owls"));
}

TEST_F(KindsTest, ASetOutlivesAQuestionPutAsideAndASaveThatFailed)
{
    window.show();
    Type("txtTitle", QStringLiteral("Imp"));
    user.WillAnswer(Answer::Cancel);
    Run("new");
    for (const char* command : {"new", "exit"}) {
        user.WillAnswer(Answer::Yes);
        user.WillChoose(folder.Path(QStringLiteral("none/set.dkf")));
        Run(command);
        EXPECT_EQ(user.LastBox().Style, BoxStyle::Critical);
        EXPECT_EQ(Set().Cards[1].Title, QStringLiteral("Imp"));
        EXPECT_TRUE(window.isVisible());
    }
}

TEST_F(KindsTest, KeysAndCommandsGoByTheTab)
{
    for (const int tab : {1, 2, 3}) {
        SelectTab(tab);
        Press(Qt::CTRL | Qt::Key_N);
    }
    EXPECT_EQ(Label("lblCurrentCardLarge"), QStringLiteral("2 (2)"));
    EXPECT_EQ(Text("txtCharName"), QStringLiteral("CHARACTER 2"));
    Press(Qt::CTRL | Qt::Key_Comma);
    EXPECT_EQ(Text("txtCharName"), QStringLiteral("CHARACTER 1"));
    Press(Qt::CTRL | Qt::Key_Comma);
    Press(Qt::CTRL | Qt::Key_Period);
    Press(Qt::CTRL | Qt::Key_Period);
    EXPECT_EQ(Label("lblCurrentCardCharacter"), QStringLiteral("2 (2)"));

    SelectTab(4);
    Press(Qt::CTRL | Qt::Key_N);
    Press(Qt::CTRL | Qt::Key_Comma);
    EXPECT_EQ(Set().NewCardBackCount, 1);
    EXPECT_EQ(Set().CurrentCharacter, 2);
    Run("copy");
    EXPECT_EQ(user.LastBox().Text, QStringLiteral("The character card is copied."));
    SelectTab(3);
    Find<QScrollBar>("hsbCharacter").setValue(1);
    Run("paste");
    EXPECT_EQ(Text("txtCharName"), QStringLiteral("CHARACTER 2"));
    EXPECT_EQ(Set().Characters[1].Name, QStringLiteral("CHARACTER 2"));
}

TEST_F(KindsTest, ImagesAreMadeOfTheKindThatTheTabShows)
{
    OpenChangedSet([&](CardSet& set) { set.Header.SaveTo = folder.WithSeparator(); });
    SelectTab(2);
    SelectTab(3);
    SelectTab(4);
    user.WillChoose(folder.Path(QStringLiteral("owl.bmp")));
    Run("createone");
    EXPECT_TRUE(folder.Has(QStringLiteral("owl.bmp")));
    Run("createall");
    EXPECT_EQ(user.LastBox().Text, QStringLiteral("1 character card is created."));
    SelectTab(2);
    Run("createall");
    EXPECT_EQ(user.LastBox().Text, QStringLiteral("1 large card is created."));
    EXPECT_TRUE(folder.Has(QStringLiteral("Large  LARGE CARD 1.bmp")));
    EXPECT_EQ(Text("txtTitleLarge"), QStringLiteral("LARGE CARD 1"));
}

TEST_F(KindsTest, AnOpenedSetLeavesSlidersOfTheOneBefore)
{
    SelectTab(4);
    Click("cmdNewCardBackAdd");
    Click("cmdNewCardBackAdd");
    Click("cmdCardAdd"); // of the first tab, which is not shown
    for (int i = 0; i < 4; ++i)
        Click("cmdCharacterAdd");
    OpenChangedSet([](CardSet& set) {
        AddElement(set, LargeKind);
        AddElement(set, LargeKind);
        set.CharacterCount = 2;
        set.Characters.Resize(2);
        set.NewCardBackCount = 1;
        set.NewCardBacks.Resize(1);
    });
    EXPECT_EQ(Find<QTabBar>("tbCard").currentIndex(), 0);
    EXPECT_EQ(Position(), QStringLiteral("1 (2)"));
    EXPECT_EQ(Find<QScrollBar>("hsbCard").value(), 2);
    SelectTab(2);
    EXPECT_EQ(Label("lblCurrentCardLarge"), QStringLiteral("1 (2)"));
    EXPECT_EQ(Find<QScrollBar>("hsbCardLarge").maximum(), 2);
    SelectTab(3);
    EXPECT_EQ(Label("lblCurrentCardCharacter"), QStringLiteral("1 (2)"));
    EXPECT_EQ(Find<QScrollBar>("hsbCharacter").maximum(), 2);
    SelectTab(4);
    EXPECT_EQ(Label("lblCurrentNewCardBack"), QStringLiteral("1 (1)"));
    EXPECT_EQ(Find<QScrollBar>("hsbNewCardBack").maximum(), 3);
    Find<QScrollBar>("hsbNewCardBack").setValue(2);
    EXPECT_EQ(Label("lblCurrentNewCardBack"), QStringLiteral("1 (1)"));
}

TEST_F(KindsTest, SlidersTellWhatTheyTellOfEachKind)
{
    const auto drag = [&](const char* name, int position) {
        auto& slider = Find<QScrollBar>(name);
        slider.setSliderDown(true);
        slider.setSliderPosition(position);
    };
    SelectTab(2);
    Click("cmdCardAddLarge");
    drag("hsbCardLarge", 1);
    EXPECT_EQ(Label("lblCurrentCardLarge"), QStringLiteral("2 (2)"));
    EXPECT_EQ(Label("lblCardTitleLarge"), QString());
    SelectTab(3);
    Click("cmdCharacterAdd");
    drag("hsbCharacter", 1);
    EXPECT_EQ(Label("lblCurrentCardCharacter"), QStringLiteral("1 (2)"));
    EXPECT_EQ(Label("lblChar"), QStringLiteral("CHARACTER 1"));
    SelectTab(4);
    Click("cmdNewCardBackAdd");
    drag("hsbNewCardBack", 1);
    EXPECT_EQ(Label("lblCurrentNewCardBack"), QStringLiteral("1 (2)"));
}

TEST_F(KindsTest, OnlyTheLastOfTheOtherKindsStaysWithoutAWord)
{
    SelectTab(2);
    Click("cmdCardDeleteLarge");
    SelectTab(3);
    Click("cmdCharacterDelete");
    EXPECT_TRUE(user.Boxes.empty());
    Click("cmdCharacterAdd");
    user.WillAnswer(Answer::Yes);
    Click("cmdCharacterDelete");
    EXPECT_EQ(user.LastBox().Text,
              QStringLiteral("Are you sure you want to delete the character \"CHARACTER 2\"?"));
    EXPECT_EQ(Label("lblCurrentCardCharacter"), QStringLiteral("1 (1)"));
}

TEST_F(KindsTest, ARunIsNotDisturbed)
{
    window.show();
    window.ShowProgress(1, 3);
    window.close();
    EXPECT_TRUE(window.isVisible());
    window.ShowProgress(3, 3);
    window.close();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(KindsTest, TheWheelTurnsNothingThatTheUserDoesNotWorkIn)
{
    for (const char* name : {"cboCardBack", "cboType", "udCopy", "tbCard"}) {
        auto& control = Find<QWidget>(name);
        QWheelEvent turn({2, 2}, control.mapToGlobal(QPointF(2, 2)), {}, {0, -120}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&control, &turn);
    }
    EXPECT_EQ(Set().Cards[1].CardBack, 1);
    EXPECT_EQ(Set().Cards[1].SubType, QStringLiteral("Animal"));
    EXPECT_EQ(Set().Cards[1].Copies, 1);
    EXPECT_EQ(Set().LargeCardCount, 0);
}

/// What the keyboard and a screen reader need.
TEST_F(KindsTest, ControlsAreNamedAndTabGoesInReadingOrder)
{
    window.show();
    for (int tab = 1; tab <= 4; ++tab) {
        SelectTab(tab);
        QWidget* const first = &Find<QTabBar>("tbCard");
        first->setFocus();
        const QWidget* before = nullptr;
        int stops = 0;
        for (QWidget* stop = first->nextInFocusChain(); stop != first; stop = stop->nextInFocusChain()) {
            if (!(stop->focusPolicy() & Qt::TabFocus) || !stop->isVisible() || stop->focusProxy())
                continue;
            ++stops;
            const auto* const button = qobject_cast<QAbstractButton*>(stop);
            EXPECT_TRUE(!stop->accessibleName().isEmpty() || (button && !button->text().isEmpty()))
                << stop->objectName().toStdString();
            if (before && before->parentWidget() == stop->parentWidget()) {
                const QRect above = before->geometry();
                const QRect here = stop->geometry();
                const bool isBelow = here.center().y() >= above.bottom() || here.top() >= above.bottom();
                EXPECT_TRUE(isBelow || here.left() > above.left())
                    << tab << before->objectName().toStdString() << stop->objectName().toStdString();
            }
            before = stop;
        }
        EXPECT_GT(stops, 20) << tab;
    }
}

} // namespace

} // namespace deckforge
