#include "editor/WindowTest.h"
#include "platform/Paths.h"
#include "support/EveryKind.h"

namespace deckforge {

class ClosingTest : public WindowTest {
protected:
    ClosingTest() { QFile::remove(RescuedPath()); }
    ~ClosingTest() override { QFile::remove(RescuedPath()); }

    static QString RescuedPath() { return ProgramFolder() + "rescued.dkf"; }
    static bool IsRescued() { return QFile::exists(RescuedPath()); }
};

TEST_F(ClosingTest, TheCloseBoxRescuesWhatWasNeitherReadNorWritten)
{
    window.close();
    EXPECT_FALSE(IsRescued()) << "a new set as it was made";
    Type("txtTitle", "Bear");
    window.close();
    EXPECT_TRUE(IsRescued());
    EXPECT_TRUE(user.Boxes.empty());
    ScriptedUser reader;
    CardSet rescued;
    ASSERT_TRUE(ReadDKF(rescued, RescuedPath(), reader));
    EXPECT_EQ(rescued.Cards[1].Title, "Bear");
}

TEST_F(ClosingTest, TheWindowStaysWithASetThatCannotBeRescued)
{
    Type("txtTitle", QStringLiteral("Bear"));
    const QString inTheWay = RescuedPath() + QStringLiteral("~");
    ASSERT_TRUE(QDir().mkdir(inTheWay));
    window.show();
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(user.LastBox().Text.contains(QStringLiteral("75, Path/File access error")));
    Line("txtTitle").setText("медведь"); // which no file can hold
    user.WillAnswer(Answer::No);
    Run("exit");
    EXPECT_FALSE(window.isVisible()) << "the user was asked";
    window.show();
    ASSERT_TRUE(QDir().rmdir(inTheWay));
    EXPECT_TRUE(window.close());
    EXPECT_TRUE(IsRescued());
}

TEST_F(ClosingTest, WhatIsOnTheDiskOrWasAskedForIsNotRescued)
{
    OpenChangedSet(AddOneOfEachKind);
    for (int tab = 1; tab <= 4; ++tab)
        SelectTab(tab);
    window.close();
    EXPECT_FALSE(IsRescued()) << "a set that was only looked at";

    Type("txtSetname", "Saved");
    user.WillChoose(folder.Path("saved.dkf"));
    Run("save");
    window.close();
    EXPECT_FALSE(IsRescued());

    Type("txtSetname", "Given up");
    user.WillAnswer(deckforge::Answer::No);
    Run("exit");
    EXPECT_FALSE(IsRescued()) << "the user was asked";
}

} // namespace deckforge
