// SPDX-License-Identifier: GPL-3.0-or-later

#include "BuildPaths.h"
#include "support/DefaultSignals.h"
#include "support/TestFolder.h"

#include <QProcess>
#include <QTest>
#include <csignal>

namespace deckforge {

/// Runs the window program in a separate process with its own home folder.
class ProgramTest : public testing::Test {
protected:
    void Start()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", Home.Path());
        environment.insert("XDG_CONFIG_HOME", Home.Path());
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        Program.setProcessEnvironment(environment);
        Program.start(DECKFORGE_WINDOW, QStringList());
        EXPECT_TRUE(Program.waitForStarted());
        EXPECT_TRUE(QTest::qWaitFor([&] { return Catches(SIGTERM); }, TimeoutMilliseconds))
            << Program.readAllStandardError().toStdString();
        // Wait until it is idle: after a crash in the middle of its work a rescue may fail.
        EXPECT_TRUE(QTest::qWaitFor([&] { return IsAtRest(); }, TimeoutMilliseconds));
    }
    void Kill(int signal) { ::kill(static_cast<pid_t>(Program.processId()), signal); }

    static constexpr const char* Rescued = "Documents/Varnhelm Deck Forge/rescued.dkf";

    static constexpr int TimeoutMilliseconds = 20000;
    TestFolder Home;
    DefaultSignals Signals; ///< for the program
    QProcess Program;

private:
    /// A file of /proc for the process.
    [[nodiscard]] QByteArray ProcFile(const char* name) const
    {
        QFile file(QString("/proc/%1/%2").arg(Program.processId()).arg(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Whether the process is idle, waiting for its user.
    [[nodiscard]] bool IsAtRest() const
    {
        const auto ticks = [&] {
            const QByteArray all = ProcFile("stat");
            const QList<QByteArray> fields = all.mid(all.lastIndexOf(')') + 2).split(' ');
            return fields.value(0) + fields.value(11) + ' ' + fields.value(12);
        };
        const QByteArray before = ticks();
        QTest::qSleep(100);
        return before.startsWith('S') && ticks() == before;
    }

    [[nodiscard]] bool Catches(int signal) const
    {
        const QByteArray all = ProcFile("status");
        const QByteArray mask = all.mid(all.indexOf("SigCgt:") + 7).split('\n').front().trimmed();
        return (mask.toULongLong(nullptr, 16) >> (signal - 1) & 1) != 0;
    }
};

TEST_F(ProgramTest, RescuesItsSetWhenTheSessionEndsItOrItCrashes)
{
#ifndef __SANITIZE_ADDRESS__ // the sanitizer handles crashes itself
    const std::initializer_list<int> signals = {SIGTERM, SIGHUP, SIGINT, SIGSEGV, SIGABRT};
#else
    const std::initializer_list<int> signals = {SIGTERM, SIGHUP, SIGINT};
#endif
    for (const int signal : signals) {
        QFile::remove(Home.Path(Rescued));
        Start();
        Kill(signal);
        EXPECT_TRUE(Program.waitForFinished()) << "it does not end";
        EXPECT_TRUE(Program.readAllStandardError().endsWith("The card set is rescued to " +
                                                            Home.Path(Rescued).toUtf8() + '\n'));
        EXPECT_EQ(Program.exitStatus(), QProcess::CrashExit) << "by the signal itself";
        EXPECT_EQ(Program.exitCode(), signal);
        EXPECT_TRUE(Home.Read(Rescued).endsWith("-- END --\r\n"));
    }
}

} // namespace deckforge
