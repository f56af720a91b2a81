#include "support/Failures.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>
#include <csignal>

namespace deckforge {

namespace {

/// The built window program in a process and a home of its own.
class ProgramTest : public testing::Test {
protected:
    void Start(const QString& platform = QStringLiteral("offscreen"))
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), Home.Path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), Home.Path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
        Program.setProcessEnvironment(environment);
        Program.start(QStringLiteral(DECKFORGE_WINDOW), QStringList());
        EXPECT_TRUE(Program.waitForStarted());
        EXPECT_TRUE(Comes([&] { return Catches(SIGTERM); })) << Program.readAllStandardError().toStdString();
        EXPECT_TRUE(
            Comes([&] { return IsAtRest(); })); // a crash in the middle of its work is rescued by luck
    }
    void Kill(int signal) { ::kill(static_cast<pid_t>(Program.processId()), signal); }

    /// What it says until it has ended.
    QByteArray LastWords()
    {
        EXPECT_TRUE(Program.waitForFinished()) << "it does not end";
        return Program.readAllStandardError();
    }
    QString Rescued(const char* name = "rescued.dkf") const
    {
        return Home.Path() + QStringLiteral("/Documents/Varnhelm Deck Forge/") + QLatin1String(name);
    }

    template <class Condition>
    static bool Comes(Condition&& condition)
    {
        constexpr int mostMilliseconds = 20000;
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < mostMilliseconds)
            QThread::msleep(5);
        return condition();
    }

    TestFolder Home;
    QProcess Program;

private:
    /// Whether it takes no time of the processor any more, as it does when it waits for its user.
    [[nodiscard]] bool IsAtRest() const
    {
        const auto ticks = [&] {
            QFile stat(QStringLiteral("/proc/%1/stat").arg(Program.processId()));
            const QByteArray all = stat.open(QIODevice::ReadOnly) ? stat.readAll() : QByteArray();
            const QList<QByteArray> fields = all.mid(all.lastIndexOf(')') + 2).split(' ');
            return fields.value(0) + fields.value(11) + ' ' + fields.value(12);
        };
        const QByteArray before = ticks();
        QThread::msleep(100);
        return before.startsWith('S') && ticks() == before;
    }

    [[nodiscard]] bool Catches(int signal) const
    {
        QFile status(QStringLiteral("/proc/%1/status").arg(Program.processId()));
        if (!status.open(QIODevice::ReadOnly))
            return false;
        const QByteArray all = status.readAll();
        const QByteArray mask = all.mid(all.indexOf("SigCgt:") + 7).split('\n').front().trimmed();
        return (mask.toULongLong(nullptr, 16) >> (signal - 1) & 1) != 0;
    }
};

} // namespace

TEST_F(ProgramTest, RescuesItsSetWhenTheSessionEndsItOrItCrashes)
{
#ifndef __SANITIZE_ADDRESS__ // which handles crashes itself
    const std::initializer_list<int> signals = {SIGTERM, SIGHUP, SIGINT, SIGSEGV, SIGABRT};
#else
    const std::initializer_list<int> signals = {SIGTERM, SIGHUP, SIGINT};
#endif
    for (const int signal : signals) {
        QFile::remove(Rescued());
        Start();
        Kill(signal);
        EXPECT_TRUE(LastWords().endsWith("The card set is rescued to " + Rescued().toUtf8() + "\n"))
            << signal;
        EXPECT_EQ(Program.exitStatus(), QProcess::CrashExit) << "by the signal itself";
        EXPECT_EQ(Program.exitCode(), signal);
        QFile rescued(Rescued());
        EXPECT_TRUE(rescued.open(QIODevice::ReadOnly));
        EXPECT_TRUE(rescued.readAll().endsWith("-- END --\r\n"));
    }
}

TEST_F(ProgramTest, RescuesItsSetWhenTheDisplayGoesAway)
{
    if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty())
        GTEST_SKIP() << "no display to take away on this machine";
    QProcess display;
    display.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1")});
    ASSERT_TRUE(display.waitForReadyRead());
    qputenv("DISPLAY", ':' + display.readLine().trimmed());
    Start(QStringLiteral("xcb"));
    display.kill();
    EXPECT_TRUE(LastWords().contains("The card set is rescued to " + Rescued().toUtf8()));
    EXPECT_TRUE(QFile::exists(Rescued()));
    display.waitForFinished();
}

} // namespace deckforge
