#include "files/Rescue.h"
#include "platform/LastAct.h"
#include "support/SetTest.h"

#include <QDir>
#include <csignal>
#include <unistd.h>

namespace deckforge {

class RescueTest : public SetTest {
protected:
    void RescueAs(const QString& name)
    {
        Set.Header.SetName = name;
        EXPECT_EQ(RescueSet(Set, Folder.WithSeparator()), Folder.Path("rescued.dkf"));
    }
    /// The name of the set in the file; empty where there is none.
    QString NameIn(const QString& file)
    {
        CardSet read;
        InitSet(read);
        ScriptedUser silent;
        return ReadDKF(read, Folder.Path(file), silent) ? read.Header.SetName : QString();
    }
};

TEST_F(RescueTest, EarlierOnesMoveOnAndTheTenthGoes)
{
    for (int i = 1; i <= 12; ++i)
        RescueAs(QString::number(i));
    EXPECT_EQ(NameIn("rescued.dkf"), "12");
    for (int age = 1; age <= 9; ++age)
        EXPECT_EQ(NameIn(QStringLiteral("rescued-%1.dkf").arg(age)), QString::number(12 - age));
    EXPECT_FALSE(Folder.Has("rescued-10.dkf"));
    const QString gone = Folder.Path("gone/");
    EXPECT_EQ(RescueSet(Set, gone), gone + "rescued.dkf") << "the folder is made again";

    QFile::remove(Folder.Path("rescued-2.dkf"));
    RescueAs("13");
    EXPECT_EQ(NameIn("rescued-2.dkf"), "11");
    EXPECT_EQ(NameIn("rescued-9.dkf"), "3") << "there was room below it";
}

TEST_F(RescueTest, TextsThatNoFileCanHoldTakeNothingElseWithThem)
{
    Set.Cards[1].Title = "two\r\nlines";
    Set.Cards[1].Info = "Łódź\r\n€";
    RescueAs("mended");
    const QByteArray bytes = Folder.Read("rescued.dkf");
    EXPECT_TRUE(bytes.contains("\r\ntwo lines\r\n"));
    EXPECT_TRUE(bytes.contains("\r\n?\xF3"
                               "d?|\x80\r\n"));
    EXPECT_EQ(NameIn("rescued.dkf"), "mended");
}

TEST_F(RescueTest, AFailureIsToldAndTheEarlierOnesStay)
{
    RescueAs("earlier");
    ASSERT_TRUE(QDir(Folder.Path()).mkdir("rescued.dkf~")); // nothing can be written there
    testing::internal::CaptureStderr();
    RescueAtTheEnd(Set, Folder.WithSeparator());
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "The card set could NOT be rescued: 75, Path/File access error\n");
    EXPECT_EQ(NameIn("rescued.dkf"), "earlier");
    EXPECT_FALSE(Folder.Has("rescued-1.dkf"));
}

TEST_F(RescueTest, ASetDiffersByWhatItsFileHolds)
{
    KeptSet kept;
    kept.Keep(Set);
    EXPECT_FALSE(kept.Differs(Set));
    Set.Cards.Clip.Title = "copied";
    EXPECT_FALSE(kept.Differs(Set)) << "no part of the file";
    Set.Cards[1].PictureLeft = 15;
    EXPECT_TRUE(kept.Differs(Set));
    Set.Cards[1].PictureLeft = 0;
    EXPECT_FALSE(kept.Differs(Set));
    Set.Cards[1].Info = "ж";
    EXPECT_TRUE(kept.Differs(Set));
    kept.Keep(Set);
    EXPECT_TRUE(kept.Differs(Set)) << "what cannot be written has never been";
}

TEST(LastActDeathTest, RunsOnceBeforeFailuresThatNobodyHandles)
{
    testing::FLAGS_gtest_death_test_style = "fast";
    const auto say = [] { std::fputs("last act. ", stderr); };
    const auto fail = [] { throw RunTimeError(ErrorNumber::DeviceIo); };
    const auto failUnhandled = [&]() noexcept {
        const LastAct act(say);
        fail();
    };
    EXPECT_DEATH(failUnhandled(), "^last act. terminate called.*\n.*57, Device I/O error");
    EXPECT_EXIT(
        {
            const LastAct act(say);
            std::exit(3);
        },
        testing::ExitedWithCode(3), "^last act. $");
    EXPECT_EXIT(
        {
            const LastAct act(say);
            std::raise(SIGALRM); // the session has waited long enough for a program that is busy
        },
        testing::KilledBySignal(SIGALRM), "^last act. $");
    EXPECT_EXIT(
        {
            const LastAct act(say);
            qWarning("The Wayland connection broke. Did the Wayland compositor die?");
            ::_exit(1); // the drawing library goes so
        },
        testing::ExitedWithCode(1), "last act. $");
    EXPECT_EXIT(
        {
            {
                const LastAct act(say);
            }
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "^$");
}

} // namespace deckforge
