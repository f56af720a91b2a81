// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/Rescue.h"
#include "files/modFile.h"
#include "platform/TerminationGuard.h"
#include "support/DefaultSignals.h"
#include "support/SetTest.h"

#include <QDir>
#include <QScopeGuard>
#include <csignal>
#include <unistd.h>

namespace deckforge {

class RescueTest : public SetTest {
protected:
    /// Rescues the set under a name, in a new run or the given one.
    QString RescueAs(const QString& name)
    {
        UnsavedWork run(Folder.WithSeparator(), {});
        return RescueAs(name, run);
    }
    QString RescueAs(const QString& name, UnsavedWork& run)
    {
        Set.Header.SetName = name;
        return run.Rescue(Set);
    }
    /// The name of the set in the file; empty if there is none.
    QString NameIn(const QString& file)
    {
        CardSet read;
        InitSet(read);
        ScriptedUser silent;
        return OpenSet(read, Folder.Path(file), silent) ? read.Header.SetName : QString();
    }
    /// The set names in the latest files.
    QString Names()
    {
        return QStringList{NameIn("rescued.dkf"), NameIn("rescued-1.dkf"), NameIn("rescued-2.dkf")}.join('|');
    }
};

TEST_F(RescueTest, EarlierSetsAreRenumberedAndTheTenthIsRemoved)
{
    for (int i = 1; i <= 12; ++i)
        EXPECT_EQ(RescueAs(QString::number(i)), Folder.Path("rescued.dkf"));
    EXPECT_EQ(NameIn("rescued.dkf"), "12");
    for (int age = 1; age <= 9; ++age)
        EXPECT_EQ(NameIn(QStringLiteral("rescued-%1.dkf").arg(age)), QString::number(12 - age));
    EXPECT_FALSE(Folder.Has("rescued-10.dkf"));
    const QString gone = Folder.Path("gone/");
    EXPECT_EQ(UnsavedWork(gone, {}).Rescue(Set), gone + "rescued.dkf") << "the folder is created again";

    QFile::remove(Folder.Path("rescued-2.dkf"));
    RescueAs("13");
    EXPECT_EQ(NameIn("rescued-2.dkf"), "11");
    EXPECT_EQ(NameIn("rescued-9.dkf"), "3") << "there was room below it";
    for (const char* name : {"rescued.dkf", "rescued-9.dkf"})
        EXPECT_TRUE(IsRescuedSet(Folder.Path(name))) << name;
    EXPECT_FALSE(IsRescuedSet(Folder.Path("rescued-10.dkf")));
}

TEST_F(RescueTest, ARunReplacesItsOwnFileWhateverItsNumber)
{
    RescueAs("before");
    UnsavedWork one(Folder.WithSeparator(), {});
    UnsavedWork other(Folder.WithSeparator(), {});
    for (const char* name : {"one", "one again"})
        RescueAs(name, one);
    EXPECT_EQ(Names(), "one again|before|");
    RescueAs("other", other);
    EXPECT_EQ(RescueAs("one at last", one), Folder.Path("rescued-1.dkf"));
    EXPECT_EQ(Names(), "other|one at last|before");
    one.Keep(Set); // as after saving
    EXPECT_EQ(Names(), "other||before");

    Folder.Write("rescued.dkf", "somebody's");
    RescueAs("other again", other);
    EXPECT_EQ(NameIn("rescued.dkf"), "other again");
    EXPECT_EQ(Folder.Read("rescued-1.dkf"), "somebody's") << "it was not its own any more";
}

TEST_F(RescueTest, IsRenewedIfItIsDueAndTheSetDiffers)
{
    UnsavedWork idle(Folder.WithSeparator(), std::chrono::hours(1));
    UnsavedWork run(Folder.WithSeparator(), {});
    idle.Keep(Set);
    run.Keep(Set);
    run.Renew(Set); // unchanged
    Set.Header.SetName = "changed";
    idle.Renew(Set); // not yet due
    EXPECT_FALSE(Folder.Has("rescued.dkf"));
    run.Renew(Set);
    EXPECT_EQ(Names(), "changed||");
}

TEST_F(RescueTest, TheFileOfALeftSetStaysUntilTheSetIsReturnedTo)
{
    UnsavedWork run(Folder.WithSeparator(), {});
    run.Keep(Set);
    EXPECT_FALSE(run.Leave(Set)) << "nothing differs";
    Set.Header.SetName = "here";
    EXPECT_EQ(run.Leave(Set), Folder.Path("rescued.dkf"));
    EXPECT_TRUE(run.ReturnTo(Set));
    Set.Header.SetName = "left";
    EXPECT_EQ(run.Leave(Set), Folder.Path("rescued.dkf"));
    EXPECT_EQ(Names(), "left||");
    Set.Header.SetName = "half read";
    EXPECT_FALSE(run.ReturnTo(Set));
    run.Renew(Set);
    EXPECT_EQ(Names(), "half read|left|");
    run.Keep(Set);
    EXPECT_EQ(Names(), "|left|");
}

TEST_F(RescueTest, ARescuedSetAboutToBeOpenedIsKept)
{
    for (int i = 1; i <= 10; ++i)
        RescueAs(QString::number(i));
    UnsavedWork run(Folder.WithSeparator(), {});
    for (const auto& [opened, left] :
         {std::pair{"rescued.dkf", "rescued-9.dkf"}, {"rescued-9.dkf", "rescued-8.dkf"}}) {
        Set.Header.SetName += '+';
        EXPECT_EQ(run.Leave(Set, Folder.Path(opened)), Folder.Path(left));
    }
    EXPECT_EQ(Names(), "10|9|8");
    EXPECT_EQ(NameIn("rescued-9.dkf"), "10+");

    const QString own = RescueAs("its own", run);
    EXPECT_NE(run.Leave(Set, own), own);
    EXPECT_EQ(NameIn("rescued.dkf"), "its own");
}

TEST_F(RescueTest, IsWrittenBesideTheSetOrToTheTemporaryFolderIfNecessary)
{
    const QByteArray before = qgetenv("TMPDIR");
    const auto restore = qScopeGuard([&] { qputenv("TMPDIR", before); });
    qputenv("TMPDIR", Folder.Path().toUtf8());
    const QString noFolder = Folder.Write("file", "") + '/';
    QDir(Folder.Path()).mkdir("set");
    UnsavedWork run(noFolder, {});
    EXPECT_FALSE(run.LatestRescued());
    run.Keep(Set, Folder.Path("set/"));
    EXPECT_EQ(RescueAs("beside", run), Folder.Path("set/rescued.dkf"));
    EXPECT_EQ(run.LatestRescued()->Path, Folder.Path("set/rescued.dkf"));

    run.Keep(Set);
    const QString temporary = Folder.Path(QString("varnhelm-deck-forge-%1").arg(::getuid()));
    EXPECT_EQ(RescueAs("temporary", run), temporary + "/rescued.dkf");
    EXPECT_EQ(run.LatestRescued()->Path, temporary + "/rescued.dkf");
    EXPECT_EQ(QFile::permissions(temporary) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());

    QDir(temporary).removeRecursively();
    ASSERT_TRUE(QFile::link(Folder.Path("set"), temporary)); // as another user could have made
    testing::internal::CaptureStderr();
    run.RescueAtExit(Set);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "The card set could NOT be rescued: 75, Path/File access error\n");
    EXPECT_TRUE(QDir(Folder.Path("set")).isEmpty());
}

TEST_F(RescueTest, OnlyTextsThatAreTooLongAreChanged)
{
    Set.Cards[1].Title = QString(100'000, 'x');
    Set.Cards[1].Info = "Łódź";
    RescueAs("mended");
    const QByteArray bytes = Folder.Read("rescued.dkf");
    EXPECT_TRUE(bytes.contains("\r\n" + QByteArray(1 << 16, 'x') + "\r\n"));
    EXPECT_TRUE(bytes.contains("\r\n\\u{141}\xF3"
                               "d\\u{17A}\r\n"));
    EXPECT_EQ(NameIn("rescued.dkf"), "mended");
}

TEST_F(RescueTest, ASetDiffersIfItsFileContentsDiffer)
{
    UnsavedWork kept(Folder.WithSeparator(), {});
    kept.Keep(Set);
    Set.Cards.Clip.Title = "copied";
    EXPECT_FALSE(kept.Differs(Set)) << "no part of the file";
    Set.Cards[1].PictureLeft = 15;
    EXPECT_TRUE(kept.Differs(Set));
    Set.Cards[1].Info = QString(100'000, 'x');
    kept.Keep(Set);
    EXPECT_TRUE(kept.Differs(Set)) << "what cannot be written has never been";
}

TEST(TerminationGuardDeathTest, RunsOnceBeforeUnhandledFailures)
{
    testing::FLAGS_gtest_death_test_style = "fast";
    const DefaultSignals defaults;
    const auto end = [](void (*way)()) noexcept {
        const TerminationGuard act([] { std::fputs("last act. ", stderr); });
        way();
    };
    const auto fail = [] { throw RunTimeError(ErrorNumber::DeviceIo); };
    const auto wait = [] { (void)std::raise(SIGALRM); }; // as if the session did not wait
    const auto loseDisplay = [] {
        qWarning("The Wayland connection broke. Did the Wayland compositor die?");
        ::_exit(1); // as the Wayland client library does
    };
    EXPECT_DEATH(end(fail), "^last act. terminate called.*\n.*57, Device I/O error");
    EXPECT_EXIT(end([] { std::exit(3); }), testing::ExitedWithCode(3), "^last act. $");
    EXPECT_EXIT(end(wait), testing::KilledBySignal(SIGALRM), "^last act. $");
    EXPECT_EXIT(end(loseDisplay), testing::ExitedWithCode(1), "last act. $");
    EXPECT_EXIT((end([] {}), std::raise(SIGTERM)), testing::KilledBySignal(SIGTERM), "^$");
}

} // namespace deckforge
