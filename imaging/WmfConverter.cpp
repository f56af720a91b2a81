// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/WmfConverter.h"

#include "imaging/PictureFormats.h"
#include "platform/Files.h"
#include "platform/LimitedProcess.h"
#include "platform/RunTimeError.h"

#include <QTemporaryDir>

namespace deckforge {

namespace {

constexpr ProcessLimits Limits = {
    .Seconds = 10, .MemoryBytes = qint64(512) << 20, .WrittenFileBytes = qint64(256) << 20};

bool RunConverter(const QStringList& arguments)
{
    const QString program = QStringLiteral("wmf2gd");
    try {
        return RunLimited(program, arguments, {}, Limits).has_value();
    } catch (const RunTimeError& error) {
        throw RunTimeError(
            error.Number(),
            QStringLiteral("WMF pictures need the program %1, which cannot be started. Install the "
                           "package libwmf-bin.")
                .arg(program));
    }
}

} // namespace

QByteArray WmfToPng(const QByteArray& wmf, qint64 maxPixels, int scale)
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("picture.wmf"));
    const QString target = folder.filePath(QStringLiteral("picture.png"));
    QStringList arguments = {QStringLiteral("-t"), QStringLiteral("png"), QStringLiteral("-o"), target};
    if (const auto size = PlaceableWmfSize(wmf)) {
        const QSize scaled = *size * scale;
        if (qint64{scaled.width()} * scaled.height() > maxPixels)
            throw RunTimeError(ErrorNumber::InvalidPicture);
        arguments << QStringLiteral("--maxwidth=%1").arg(scaled.width())
                  << QStringLiteral("--maxheight=%1").arg(scaled.height()) << QStringLiteral("--maxsize");
    }
    {
        OutputFile file(source);
        file.Write(wmf);
    }
    if (!RunConverter(arguments << source) || !IsRegularFile(target))
        throw RunTimeError(ErrorNumber::InvalidPicture);
    return ReadWholeFile(target, Limits.WrittenFileBytes);
}

} // namespace deckforge
