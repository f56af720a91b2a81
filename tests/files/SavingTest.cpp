#include "core/modInfo.h"
#include "files/modFile.h"
#include "support/Failures.h"
#include "support/Limits.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace deckforge {

namespace {

/// Saving a set over an older one, which must be on the disk whatever happens: under its name or as its copy.
class SavingTest : public testing::Test {
protected:
    SavingTest()
    {
        InitSet(Old);
        InitSet(New);
        New.Header.SetName = QStringLiteral("A set with more in it than the one before");
        AddElement(New, LargeKind);
        OldBytes = SetFileBytes(Old, Unwritable::Fail);
        NewBytes = SetFileBytes(New, Unwritable::Fail);
        Folder.Write(Name, OldBytes);
    }

    bool Save() { return WriteDKF(New, Folder.Path(Name), User, Report::Silent); }
    [[nodiscard]] QByteArray Bytes(const QString& name) const
    {
        return Folder.Has(name) ? Folder.Read(name) : QByteArray();
    }
    /// One of the two sets, whole. The reader does without its last line end.
    [[nodiscard]] bool IsWhole(QByteArray bytes) const
    {
        if (!bytes.endsWith("\r\n"))
            bytes += "\r\n";
        return bytes == OldBytes || bytes == NewBytes;
    }
    [[nodiscard]] bool IsSafe() const
    {
        return IsWhole(Bytes(Name)) || IsWhole(Bytes(Name + QLatin1Char('~')));
    }

    const QString Name = QStringLiteral("set.dkf");
    TestFolder Folder;
    ScriptedUser User;
    CardSet Old;
    CardSet New;
    QByteArray OldBytes;
    QByteArray NewBytes;
};

/// Lets a child run to its system call of that number, counted at entry and at return, and kills it there.
/// False when it has ended by itself before.
bool KillAtCall(pid_t child, int number)
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

} // namespace

TEST_F(SavingTest, ADiskThatIsFullAfterAnyByteLosesNothingAndIsTold)
{
    for (qsizetype room = 0; room < NewBytes.size(); ++room) {
        {
            const FullDisk full(room);
            EXPECT_FALSE(Save()) << room;
        }
        ASSERT_TRUE(IsSafe()) << room;
        ASSERT_EQ(User.Boxes.size(), static_cast<std::size_t>(room) + 1);
        ASSERT_TRUE(User.Boxes.back().Text.endsWith(QStringLiteral("61, Disk full"))) << room;
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
    EXPECT_FALSE(Folder.Has(Name + QLatin1Char('~')));
}

TEST_F(SavingTest, PlacesThatTakeNoSetAreToldAndLeaveAll)
{
    struct Case {
        const char* What;
        std::function<void(const QDir&)> Prepare;
        const char* Failure;
    };
    const auto replaceBy = [&](const QDir& folder, auto&& make) {
        QFile::remove(folder.filePath(Name));
        make(folder.filePath(Name).toUtf8());
    };
    const std::vector<Case> cases = {
        {"a folder of its name", [&](const QDir& f) { QFile::remove(f.filePath(Name)), f.mkdir(Name); },
         "75, Path/File access error"},
        {"a folder of its copy's name", [&](const QDir& f) { f.mkdir(Name + QLatin1Char('~')); },
         "75, Path/File access error"},
        {"a fifo that nobody reads",
         [&](const QDir& f) { replaceBy(f, [](const QByteArray& p) { ::mkfifo(p.constData(), 0600); }); },
         "75, Path/File access error"},
        {"a link round in a circle",
         [&](const QDir& f) {
             replaceBy(f, [](const QByteArray& p) { (void)!::symlink(p.constData(), p.constData()); });
         },
         "75, Path/File access error"},
        {"a device without room",
         [&](const QDir& f) {
             replaceBy(f, [](const QByteArray& p) { (void)!::symlink("/dev/full", p.constData()); });
         },
         "61, Disk full"},
        {"a folder that has vanished", [](QDir f) { f.removeRecursively(); }, "76, Path not found"},
        {"a file for a folder",
         [](QDir f) {
             f.removeRecursively();
             QFile file(f.path());
             EXPECT_TRUE(file.open(QIODevice::WriteOnly));
         },
         "76, Path not found"},
    };
    for (const Case& c : cases) {
        const TestFolder place;
        place.Write(Name, OldBytes);
        c.Prepare(QDir(place.Path()));
        const bool isThere = QFileInfo(place.Path(Name)).isFile();
        EXPECT_FALSE(WriteDKF(New, place.Path(Name), User, Report::Silent)) << c.What;
        EXPECT_EQ(User.LastBox().Text,
                  QStringLiteral("The file is NOT saved due to an error.\r\n\r\n") + QLatin1String(c.Failure))
            << c.What;
        EXPECT_TRUE(!isThere || place.Read(Name) == OldBytes) << c.What;
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
        return User.LastBox().Text.section(QStringLiteral("\r\n"), -1);
    };
    EXPECT_EQ(failure(0444, 0777), QStringLiteral("70, Permission denied"));
    EXPECT_EQ(failure(0666, 0555), QStringLiteral("70, Permission denied")) << "no copy, no save";
    ::chmod(folder.constData(), 0700);
}

TEST_F(SavingTest, ALinkStaysALink)
{
    QDir(Folder.Path()).mkdir(QStringLiteral("elsewhere"));
    const QString link = Folder.Path(QStringLiteral("link.dkf"));
    for (const bool isThere : {true, false}) {
        const QString target = Folder.Path(QStringLiteral("elsewhere/target%1.dkf").arg(isThere));
        QFile::remove(link);
        ASSERT_TRUE(QFile::link(target, link));
        if (isThere)
            Folder.Write(QStringLiteral("elsewhere/target1.dkf"), OldBytes);
        EXPECT_TRUE(WriteDKF(New, link, User, Report::Silent));
        EXPECT_EQ(QFile::symLinkTarget(link), target);
        QFile written(target);
        ASSERT_TRUE(written.open(QIODevice::ReadOnly));
        EXPECT_EQ(written.readAll(), NewBytes);
    }
}

} // namespace deckforge
