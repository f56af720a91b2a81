// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/WmfConverter.h"

#include "imaging/PictureFormats.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <sys/resource.h>

namespace deckforge {

namespace {

constexpr int Seconds = 10;
constexpr rlim_t MemoryBytes = rlim_t(512) << 20;
constexpr rlim_t MaxPngBytes = rlim_t(256) << 20;

/// Sets resource limits. Runs between fork and exec.
void LimitProcess()
{
    const auto limit = [](auto resource, rlim_t value) {
        const rlimit both = {value, value};
        ::setrlimit(resource, &both);
    };
    limit(RLIMIT_CPU, Seconds);
    limit(RLIMIT_AS, MemoryBytes);
    limit(RLIMIT_FSIZE, MaxPngBytes);
    limit(RLIMIT_CORE, 0);
    ::signal(SIGXFSZ, SIG_DFL); // the converter may ignore it
}

bool RunConverter(const QStringList& arguments)
{
    const QString program = QStringLiteral("wmf2gd");
    QProcess converter;
    converter.setChildProcessModifier(LimitProcess);
    converter.setStandardInputFile(QProcess::nullDevice());
    converter.setStandardOutputFile(QProcess::nullDevice());
    converter.setStandardErrorFile(QProcess::nullDevice());
    converter.start(program, arguments);
    if (!converter.waitForStarted())
        throw RunTimeError(
            ErrorNumber::DeviceIo,
            QStringLiteral("WMF pictures need the program %1, which cannot be started. Install the "
                           "package libwmf-bin.")
                .arg(program));
    if (!converter.waitForFinished(Seconds * 1000)) {
        converter.kill();
        converter.waitForFinished();
        return false;
    }
    return converter.exitStatus() == QProcess::NormalExit && converter.exitCode() == 0;
}

} // namespace

QByteArray WmfToPng(const QByteArray& wmf, qint64 maxPixels)
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("picture.wmf"));
    const QString target = folder.filePath(QStringLiteral("picture.png"));
    QStringList arguments = {QStringLiteral("-t"), QStringLiteral("png"), QStringLiteral("-o"), target};
    if (const auto size = PlaceableWmfSize(wmf)) {
        if (qint64(size->width()) * size->height() > maxPixels)
            throw RunTimeError(ErrorNumber::InvalidPicture);
        arguments << QStringLiteral("--maxwidth=%1").arg(size->width())
                  << QStringLiteral("--maxheight=%1").arg(size->height()) << QStringLiteral("--maxsize");
    }
    {
        OutputFile file(source);
        file.Write(wmf);
    }
    if (!RunConverter(arguments << source) || !IsRegularFile(target))
        throw RunTimeError(ErrorNumber::InvalidPicture);
    return ReadWholeFile(target, static_cast<qint64>(MaxPngBytes));
}

} // namespace deckforge
