#include "support/Limits.h"
#include "support/SetTest.h"

#include <QDir>
#include <csignal>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace deckforge {

/// Saving a set over an older one, which must be on the disk whatever happens: under its name or as its copy.
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

    bool Save() { return WriteDKF(Set, Folder.Path(Name), User, Report::Silent); }
    /// Whether the file is one of the two sets, whole. The reader does without its last line end.
    [[nodiscard]] bool IsWhole(const QString& name) const
    {
        QByteArray bytes = Folder.Has(name) ? Folder.Read(name) : QByteArray();
        if (!bytes.endsWith("\r\n"))
            bytes += "\r\n";
        return bytes == OldBytes || bytes == NewBytes;
    }
    [[nodiscard]] bool IsSafe() const { return IsWhole(Name) || IsWhole(Name + '~'); }

    const QString Name = "set.dkf";
    QByteArray OldBytes;
    QByteArray NewBytes;
};

/// Lets a child run to its system call of that number, counted at entry and at return, and kills it there.
/// False when it has ended by itself before.
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

TEST_F(SavingTest, ADiskThatIsFullAfterAnyByteLosesNothingAndIsTold)
{
    for (qsizetype room = 0; room < NewBytes.size(); ++room) {
        {
            const FullDisk full(room);
            EXPECT_FALSE(Save()) << room;
        }
        ASSERT_TRUE(IsSafe()) << room;
        ASSERT_EQ(User.Boxes.size(), static_cast<std::size_t>(room) + 1);
        ASSERT_TRUE(User.Boxes.back().Text.endsWith("61, Disk full")) << room;
    }
    EXPECT_TRUE(Save());
    EXPECT_EQ(Folder.Read(Name), NewBytes);
}

TEST_F(SavingTest, ASaveThatIsKilledAtAnySystemCallLosesNothing)
{
    // Each goes on from what the one before left, as a user would who starts the program again.
    int calls = 0;
    for (bool isKilled = true; isKilled; ++calls) {
        const pid_t child = ::fork();
        if (child == 0) {
            if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
                ::_exit(1);
            ::raise(SIGSTOP);
            ::_exit(Save() ? 0 : 2);
        }
        isKilled = KillAtCall(child, calls);
        ASSERT_TRUE(IsSafe()) << "at call " << calls;
    }
    if (calls == 1)
        GTEST_SKIP() << "no child can be traced here";
    EXPECT_GT(calls, 30) << "a safe save takes many calls";
    EXPECT_EQ(Folder.Read(Name), NewBytes);
    EXPECT_FALSE(Folder.Has(Name + '~'));
}

TEST_F(SavingTest, PlacesThatTakeNoSetAreToldAndLeaveAll)
{
    const auto linkTo = [&](const QString& target) {
        return [&, target](QDir f) { f.remove(Name), QFile::link(target, f.filePath(Name)); };
    };
    const char* const noAccess = "75, Path/File access error";
    const char* const noPath = "76, Path not found";
    const std::tuple<const char*, const char*, std::function<void(QDir)>> cases[] = {
        {"a folder of its name", noAccess, [&](QDir f) { f.remove(Name), f.mkdir(Name); }},
        {"a folder of its copy's name", noAccess, [&](QDir f) { f.mkdir(Name + '~'); }},
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
        EXPECT_FALSE(WriteDKF(Set, place.Path(Name), User, Report::Silent));
        EXPECT_EQ(User.LastBox().Text, QString("The file is NOT saved due to an error.\r\n\r\n") + failure);
        EXPECT_TRUE(!isThere || place.Read(Name) == OldBytes);
        QFile::remove(place.Path());
    }
}

TEST_F(SavingTest, WhereNothingMayBeWrittenTheOldSetStays)
{
    const QByteArray file = Folder.Path(Name).toUtf8();
    const QByteArray folder = Folder.Path().toUtf8();
    const auto failure = [&](mode_t ofFile, mode_t ofFolder) {
        ::chmod(file.constData(), ofFile);
        ::chmod(folder.constData(), ofFolder);
        {
            const NoPrivileges asAnybody;
            EXPECT_FALSE(Save());
        }
        EXPECT_EQ(Folder.Read(Name), OldBytes);
        return User.LastBox().Text.section("\r\n", -1);
    };
    EXPECT_EQ(failure(0444, 0777), "70, Permission denied");
    EXPECT_EQ(failure(0666, 0555), "70, Permission denied") << "no copy, no save";
    ::chmod(folder.constData(), 0700);
}

TEST_F(SavingTest, ALinkStaysALink)
{
    QDir(Folder.Path()).mkdir("elsewhere");
    const QString link = Folder.Path("link.dkf");
    for (const bool isThere : {true, false}) {
        const QString target = isThere ? "elsewhere/old.dkf" : "elsewhere/new.dkf";
        QFile::remove(link);
        ASSERT_TRUE(QFile::link(Folder.Path(target), link));
        if (isThere)
            Folder.Write(target, OldBytes);
        EXPECT_TRUE(WriteDKF(Set, link, User, Report::Silent));
        EXPECT_EQ(QFile::symLinkTarget(link), Folder.Path(target));
        EXPECT_EQ(Folder.Read(target), NewBytes);
    }
}

} // namespace deckforge
