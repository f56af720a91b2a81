// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LimitedProcess.h"

#include "platform/RunTimeError.h"

#include <QProcess>
#include <csignal>
#include <sys/resource.h>

namespace deckforge {

namespace {

/// Sets resource limits. Runs between fork and exec.
void Limit(const ProcessLimits& limits)
{
    const auto limit = [](auto resource, qint64 value) {
        const rlimit both = {static_cast<rlim_t>(value), static_cast<rlim_t>(value)};
        ::setrlimit(resource, &both);
    };
    limit(RLIMIT_CPU, limits.Seconds);
#ifndef __SANITIZE_ADDRESS__ // which reserves terabytes
    limit(RLIMIT_AS, limits.MemoryBytes);
#endif
    limit(RLIMIT_FSIZE, limits.WrittenFileBytes);
    limit(RLIMIT_CORE, 0);
    ::signal(SIGXFSZ, SIG_DFL); // the program may ignore it
}

} // namespace

std::optional<QByteArray> RunLimited(const QString& program, const QStringList& arguments,
                                     const QByteArray& input, const ProcessLimits& limits)
{
    constexpr int milliseconds = 1000;
    QProcess process;
    process.setChildProcessModifier([&limits] { Limit(limits); });
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForStarted())
        throw RunTimeError(ErrorNumber::DeviceIo,
                           QStringLiteral("The program %1 cannot be started").arg(program));
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(limits.Seconds * milliseconds)) {
        process.kill();
        process.waitForFinished();
        return std::nullopt;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return std::nullopt;
    return process.readAllStandardOutput();
}

} // namespace deckforge
