// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/SaveFile.h"
#include "support/Limits.h"
#include "support/SetTest.h"

#include <QDir>
#include <csignal>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace deckforge {

/// Kills a child at the entry to or return from its n-th system call. False if it ended before.
static bool KillAtCall(pid_t child, int number)
{
    int status = 0;
    ::waitpid(child, &status, 0); // stopped before its first call
    for (int call = 0; call < number && WIFSTOPPED(status); ++call) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        ::waitpid(child, &status, 0);
    }
    if (!WIFSTOPPED(status))
        return false;
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    return true;
}

/// Saves a set over an older one. The disk must always have a complete set, as the file or its safety copy.
class SavingTest : public SetTest {
protected:
    SavingTest()
    {
        OldBytes = SetFileBytes(Set, Unwritable::Fail);
        Set.Header.SetName = "A set with more in it than the one before";
        AddElement<LargeCard>(Set);
        NewBytes = SetFileBytes(Set, Unwritable::Fail);
        Folder.Write(Name, OldBytes);
    }

    bool Save() { return WriteSet(Set, Folder.Path(Name), User); }
    /// Saves in a child that is killed at its n-th system call; false if it ended before.
    bool SaveKilledAt(int call)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
                ::_exit(1);
            ::raise(SIGSTOP);
            ::_exit(Save() ? 0 : 2);
        }
        return KillAtCall(child, call);
    }
    /// Makes saves overwrite the file instead of replacing it.
    void AddHardLink() const
    {
        QDir(Folder.Path()).mkdir("linked");
        ASSERT_EQ(::link(Folder.Path(Name).toUtf8().constData(),
                         Folder.Path("linked/" + Name).toUtf8().constData()),
                  0);
    }
    [[nodiscard]] struct stat Status() const
    {
        struct stat status = {};
        ::stat(Folder.Path(Name).toUtf8().constData(), &status);
        return status;
    }
    /// Sets the permissions of the folder or a file in it.
    void Permit(mode_t mode, const QString& name) const
    {
        ::chmod(Folder.Path(name).toUtf8().constData(), mode);
    }
    [[nodiscard]] QStringList Files() const
    {
        return QDir(Folder.Path()).entryList(QDir::Files | QDir::Hidden);
    }
    [[nodiscard]] bool IsSafe() const
    {
        const QStringList files = Files();
        return std::any_of(files.begin(), files.end(), [this](const QString& name) {
            const QByteArray bytes = Folder.Read(name);
            return (name == Name || IsSafetyCopy(name)) && (bytes == OldBytes || bytes == NewBytes);
        });
    }

    const QString Name = "set.dkf";
    QByteArray OldBytes;
    QByteArray NewBytes;
};

/// Runs with files that are replaced and with files that are overwritten.
class SavingEitherWayTest : public SavingTest, public testing::WithParamInterface<bool> {
protected:
    SavingEitherWayTest()
    {
        if (GetParam())
            AddHardLink();
    }
};
INSTANTIATE_TEST_SUITE_P(, SavingEitherWayTest, testing::Bool(),
                         [](const auto& way) { return way.param ? "Overwritten" : "Replaced"; });

TEST_P(SavingEitherWayTest, AFullDiskAtAnyByteChangesNothing)
{
    for (qsizetype room = 0; room < NewBytes.size(); ++room) {
        {
            const FullDisk full(room);
            EXPECT_FALSE(Save()) << room;
        }
        ASSERT_EQ(Folder.Read(Name), OldBytes) << room;
        ASSERT_EQ(Files(), QStringList{Name}) << room;
        ASSERT_TRUE(User.LastBox().Text.endsWith("61, Disk full")) << room;
    }
    EXPECT_TRUE(Save());
    EXPECT_EQ(Folder.Read(Name), NewBytes);
}

TEST_P(SavingEitherWayTest, ASaveThatIsKilledAtAnySystemCallLosesNothing)
{
    // Each save starts with the files that the one before left, as after a restart.
    int calls = 0;
    for (bool isKilled = true; isKilled; ++calls) {
        isKilled = SaveKilledAt(calls);
        ASSERT_TRUE(IsSafe()) << "at call " << calls;
    }
    if (calls == 1)
        GTEST_SKIP() << "no child can be traced here";
    EXPECT_GT(calls, 30) << "a safe save takes many calls";
    EXPECT_EQ(Folder.Read(Name), NewBytes);
}

TEST_P(SavingEitherWayTest, ConcurrentSavesLeaveOneCompleteSet)
{
    Set.Cards.Resize(3000);
    CardSet larger = Set; // takes about as long to write, so both saves compete for the file
    larger.Cards.Resize(3100);
    const QByteArray both[] = {SetFileBytes(Set, Unwritable::Fail), SetFileBytes(larger, Unwritable::Fail)};
    for (int round = 0; round < 20; ++round) {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(WriteSet(larger, Folder.Path(Name), User) ? 0 : 2);
        EXPECT_TRUE(Save());
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
        const QByteArray left = Folder.Read(Name);
        ASSERT_TRUE(left == both[0] || left == both[1]) << "round " << round;
    }
}

TEST_P(SavingEitherWayTest, TheFileKeepsItsAttributesAndOthersAreNotTouched)
{
    for (const QString& name : {Name + '~', Name + "~~", Name + ".bak"})
        Folder.Write(name, "another program's");
    for (const mode_t mode : {0600, 0640, 0666}) {
        Permit(mode, Name);
        const auto links = Status().st_nlink;
        EXPECT_TRUE(Save());
        EXPECT_EQ(Status().st_mode & 0777, mode);
        EXPECT_EQ(Status().st_nlink, links);
    }
    EXPECT_EQ(Files(), (QStringList{Name, Name + ".bak", Name + '~', Name + "~~"}));
    EXPECT_EQ(Folder.Read(Name + '~'), "another program's");
}

TEST_F(SavingTest, AForeignFileIsOverwrittenAndKeepsItsOwner)
{
    Permit(0666, Name);
    Permit(0777, {});
    const uid_t owner = Status().st_uid;
    {
        const NoPrivileges asAnybody; // cannot change the owner of files
        EXPECT_TRUE(Save()) << User.LastMessageText().toStdString();
    }
    EXPECT_EQ(Folder.Read(Name), NewBytes);
    EXPECT_EQ(Status().st_uid, owner);
    EXPECT_EQ(Status().st_mode & 0777, 0666U);
    EXPECT_EQ(Files(), QStringList{Name});
}

TEST_F(SavingTest, AFileNameOfMaximumLengthCanBeSavedRepeatedly)
{
    const QString longest = QString(251, 'x') + ".dkf";
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(WriteSet(Set, Folder.Path(longest), User)) << i;
    EXPECT_FALSE(WriteSet(Set, Folder.Path('x' + longest), User));
    EXPECT_TRUE(User.LastMessageText().endsWith("52, Bad file name or number"));
    EXPECT_EQ(Files(), (QStringList{Name, longest}));
}

TEST_F(SavingTest, OpeningAFileAfterAnInterruptedSaveShowsItsCopy)
{
    AddHardLink();
    for (int calls = 1; Folder.Read(Name) == OldBytes; ++calls) {
        for (const QString& copy : Files().filter("safety-copy"))
            QFile::remove(Folder.Path(copy));
        if (!SaveKilledAt(calls))
            GTEST_SKIP() << "no child can be traced here";
    }
    ASSERT_EQ(Files().size(), 2) << "the copy is removed last";
    const QString copy = Folder.Path(Files().constFirst());

    ASSERT_TRUE(OpenSet(Set, Folder.Path(Name), User));
    EXPECT_TRUE(User.LastBox().Text.contains(copy)) << User.LastMessageText().toStdString();
    EXPECT_TRUE(Save());
    EXPECT_TRUE(QFile::exists(copy)) << "a save removes only its own files";

    ASSERT_TRUE(OpenSet(Set, copy, User));
    User.WillCancelDialog();
    SaveSet(Set, User);
    EXPECT_EQ(User.SaveDialogs[0].FileName, Set.Header.FileName) << "not over the copy";
}

TEST_F(SavingTest, UnwritablePathsAreReportedAndNothingChanges)
{
    const auto linkTo = [&](const QString& target) {
        return [&, target](QDir f) { f.remove(Name), QFile::link(target, f.filePath(Name)); };
    };
    const char* const noAccess = "75, Path/File access error";
    const char* const noPath = "76, Path not found";
    const std::tuple<const char*, const char*, std::function<void(QDir)>> cases[] = {
        {"a folder of its name", noAccess, [&](QDir f) { f.remove(Name), f.mkdir(Name); }},
        {"a fifo that nobody reads", noAccess,
         [&](QDir f) { f.remove(Name), ::mkfifo(f.filePath(Name).toUtf8().constData(), 0600); }},
        {"a link round in a circle", noAccess, linkTo(Name)},
        {"a device without room", "61, Disk full", linkTo("/dev/full")},
        {"a folder that has vanished", noPath, [](QDir f) { f.removeRecursively(); }},
        {"a file for a folder", noPath,
         [](QDir f) { EXPECT_TRUE(f.removeRecursively() && QFile(f.path()).open(QIODevice::WriteOnly)); }}};
    for (const auto& [what, failure, prepare] : cases) {
        SCOPED_TRACE(what);
        const TestFolder place;
        place.Write(Name, OldBytes);
        prepare(QDir(place.Path()));
        const bool isThere = QFileInfo(place.Path(Name)).isFile();
        EXPECT_FALSE(WriteSet(Set, place.Path(Name), User));
        EXPECT_EQ(User.LastBox().Text, QString("The file is NOT saved due to an error.\r\n\r\n") + failure);
        EXPECT_TRUE(!isThere || place.Read(Name) == OldBytes);
        QFile::remove(place.Path());
    }
}

TEST_F(SavingTest, WithoutWritePermissionTheOldSetStays)
{
    // The second folder has no room for a copy.
    for (const auto& [ofFile, ofFolder] : {std::pair<mode_t, mode_t>{0444, 0777}, {0666, 0555}}) {
        Permit(ofFile, Name);
        Permit(ofFolder, {});
        {
            const NoPrivileges asAnybody;
            EXPECT_FALSE(Save());
        }
        EXPECT_EQ(Folder.Read(Name), OldBytes);
        EXPECT_EQ(User.LastBox().Text.section("\r\n", -1), "70, Permission denied");
    }
    Permit(0700, {});
}

TEST_F(SavingTest, ASymbolicLinkIsKept)
{
    const QString link = Folder.Path("link.dkf");
    for (const QString& target : {Name, QString("new.dkf")}) { // an existing file and a missing one
        QFile::remove(link);
        ASSERT_TRUE(QFile::link(Folder.Path(target), link));
        EXPECT_TRUE(WriteSet(Set, link, User));
        EXPECT_EQ(QFile::symLinkTarget(link), Folder.Path(target));
        EXPECT_EQ(Folder.Read(target), NewBytes);
    }
}

} // namespace deckforge
