// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/WindowTest.h"

#include <QRandomGenerator>
#include <map>

namespace deckforge {

class UndoTest : public WindowTest {
protected:
    QByteArray Bytes() { return SetFileBytes(Set(), Unwritable::Cut); }
    SetDocument& Document() { return window.Document(); }
    int StepCount() { return Document().Steps().index(); }
};

TEST_F(UndoTest, TypingIntoAFieldIsOneStepUntilTheFocusMoves)
{
    Find<QLineEdit>("txtTitle").setFocus();
    Type("txtTitle", "Wolf");
    EXPECT_EQ(StepCount(), 1);
    EXPECT_EQ(Document().Steps().undoText(), "Title");
    Type("txtArtist", "Ann");
    Document().EndVisit();
    Type("txtArtist", "Bob");
    EXPECT_EQ(StepCount(), 3);
    Document().Undo();
    EXPECT_EQ(Text("txtArtist"), "Ann");
    for (int more = 0; more < 3; ++more) // one more than there are steps
        Document().Undo();
    EXPECT_EQ(Preview().lblTitle.Caption, "CARD 1");
    Document().Redo();
    EXPECT_EQ(Text("txtTitle"), "Wolf");
}

TEST_F(UndoTest, AChangeRevertedByHandIsNoStep)
{
    Click("chkFrame");
    Click("chkFrame");
    EXPECT_EQ(StepCount(), 0);
    Type("txtTitle", "X");
    Type("txtTitle", "CARD 1");
    EXPECT_EQ(StepCount(), 0);
}

TEST_F(UndoTest, EachGestureIsOneStep)
{
    ChoosePicture("cmdGetPic", folder.WritePicture("a.bmp", PictureOfPlaces({200, 150})));
    const int before = StepCount();
    Drag(Preview().picImage, {20, 20}, {7, 3});
    EXPECT_EQ(StepCount(), before + 1);
    Drag(Preview().picImage, {20, 20}, {1, 1});
    EXPECT_EQ(StepCount(), before + 2);
    EXPECT_EQ(FirstCard().PictureLeft, 8 * 15);
    Document().Undo();
    EXPECT_EQ(FirstCard().PictureLeft, 7 * 15);
    EXPECT_EQ(Preview().picImage.Left, 7);
    Document().Undo();
    EXPECT_EQ(FirstCard().PictureLeft, 0);
}

TEST_F(UndoTest, UndoSelectsTheTabAndCardOfTheStep)
{
    Click("cmdCardAdd");
    Type("txtTitle", "Second");
    SelectTab(3);
    Type("txtCharName", "Hero");
    Document().Undo();
    EXPECT_EQ(Find<QTabBar>("tbCard").currentIndex(), 2);
    Document().Undo(); // undoes the creation of the first character
    EXPECT_EQ(Find<QTabBar>("tbCard").currentIndex(), 0) << "there is no character any more";
    Slide("hsbCard", 1);
    Document().Undo();
    EXPECT_EQ(Text({"txtTitle", "lblCurrentCard"}), "CARD 2|2 (2)");
}

TEST_F(UndoTest, SavingIsNoStepAndItsPathSurvivesUndo)
{
    Type("txtSetname", "Mine");
    user.WillChoose(folder.Path("mine.dkf"));
    Run("save");
    Document().Undo();
    EXPECT_EQ(Set().Header.SetName, "New set");
    EXPECT_EQ(Set().Header.FileName, folder.Path("mine.dkf"));
    EXPECT_EQ(Set().File.value().Path, folder.Path("mine.dkf"));
}

TEST_F(UndoTest, AnySequenceOfActionsIsUndoneAndRedoneStepByStep)
{
    QRandomGenerator random(7);
    const QString picture = folder.WritePicture("a.bmp", PictureOfPlaces({200, 150}));
    const std::vector<std::function<void()>> actions = {
        [&] { Type("txtTitle", QString::number(random.bounded(1000))); },
        [&] { Type("txtBold", "S"); },
        [&] { Find<QPlainTextEdit>("txtInfo").setPlainText(QString::number(random.bounded(1000))); },
        [&] { Choose("cboType", random.bounded(15)); },
        [&] { Type("cboType", "OWN"); },
        [&] { Choose("cboCardBack", random.bounded(20)); },
        [&] { Click("chkShowPicture"); },
        [&] { Click("chkResize"); },
        [&] { ChoosePicture("cmdGetPic", picture); },
        [&] { Click("cmdDelPic"); },
        [&] { Click("cmdCardAdd"); },
        [&] { Slide("hsbCard", 1 + random.bounded(Set().Cards.Count())); },
        [&] {
            if (Set().Cards.Count() > 1) {
                user.WillAnswer(Answer::Yes);
                Click("cmdCardDelete");
            }
        },
        [&] {
            user.WillAnswer(Answer::No);
            Run("new");
        },
        [&] { Run("copy"); },
        [&] { Run("paste"); },
        [&] { SelectTab(1 + random.bounded(4)); },
        [&] { Type("txtCharName", QString::number(random.bounded(1000))); },
        [&] { Choose("cboCharacterCardback", random.bounded(3)); },
        [&] { Click("chkAutonumber"); },
        [&] { Type("txtFilenamePrefix", QString::number(random.bounded(1000))); },
        [&] {
            Drag(Preview().picImage, {20, 20}, {random.bounded(9), random.bounded(9)});
        },
    };
    std::map<int, QByteArray> states = {{0, Bytes()}};
    for (int i = 0; i < 300; ++i) {
        actions[random.generate() % actions.size()]();
        states[StepCount()] = Bytes();
    }
    const int last = StepCount();
    ASSERT_GT(last, 50);
    for (int step = last - 1; step >= 0; --step) {
        Document().Undo();
        ASSERT_EQ(Bytes(), states[step]) << step;
    }
    for (int step = 1; step <= last; ++step) {
        Document().Redo();
        ASSERT_EQ(Bytes(), states[step]) << step;
    }
}

} // namespace deckforge
