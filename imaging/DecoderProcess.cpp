// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/DrawingFormat.h"
#include "imaging/PictureDecoders.h"
#include "platform/LimitedProcess.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QFile>

namespace deckforge {

namespace {

constexpr ProcessLimits Limits = {.Seconds = 20, .MemoryBytes = qint64(2) << 30, .WrittenFileBytes = 0};

/// Beside this program, or where the package installs it.
QString DecoderPath()
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QString beside = folder + QStringLiteral("/deckforge-decode");
    return QFile::exists(beside)
               ? beside
               : folder + QStringLiteral("/../libexec/varnhelm-deck-forge/deckforge-decode");
}

// On the wire: width, height and format of the image, then its rows of 32-bit pixels.

void WriteImage(const QImage& image, QIODevice& device)
{
    const QImage pixels = ForDrawing(image);
    QDataStream out(&device);
    out << pixels.size() << static_cast<qint32>(pixels.format());
    device.write(reinterpret_cast<const char*>(pixels.constBits()), pixels.sizeInBytes());
}

/// A decoder that was taken over may send anything.
QImage ReadImage(const QByteArray& bytes)
{
    QDataStream in(bytes);
    QSize size;
    qint32 format = 0;
    in >> size >> format;
    const bool isFormat = format == QImage::Format_ARGB32_Premultiplied || format == QImage::Format_RGB32;
    const qint64 pixels = qint64{size.width()} * size.height();
    if (in.status() != QDataStream::Ok || size.isEmpty() || !isFormat || pixels > MaxDecodedPixels)
        return {};
    QImage image(size, static_cast<QImage::Format>(format));
    const auto rows = static_cast<int>(image.sizeInBytes());
    if (in.readRawData(reinterpret_cast<char*>(image.bits()), rows) != rows)
        return {};
    return image;
}

} // namespace

QImage DecodeApart(const QByteArray& bytes, PictureFormat format, int scale)
{
    const QStringList arguments = {QString::number(static_cast<int>(format)), QString::number(scale)};
    const std::optional<QByteArray> pixels = RunLimited(DecoderPath(), arguments, bytes, Limits);
    return pixels ? ReadImage(*pixels) : QImage();
}

int RunDecoder(const QStringList& arguments)
{
    QFile in;
    QFile out;
    if (arguments.size() != 2 || !in.open(0, QIODevice::ReadOnly) ||
        !out.open(1, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return 1;
    const auto format = static_cast<PictureFormat>(arguments[0].toInt());
    const QImage image = DecodeHere(in.readAll(), format, arguments[1].toInt());
    if (image.isNull())
        return 1;
    WriteImage(image, out);
    return 0;
}

} // namespace deckforge
