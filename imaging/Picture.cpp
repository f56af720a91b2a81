// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/Picture.h"

#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QBuffer>
#include <algorithm>

namespace deckforge {

namespace {

constexpr double InchesPerMetre = 1000 / 25.4;

/// Qt's BMP encoder writes rows of indexed images with their padding, which would leak heap contents into
/// shared files.
void ClearRowPadding(QImage& image)
{
    constexpr int bitsPerByte = 8;
    const int used = (image.width() * image.depth() + bitsPerByte - 1) / bitsPerByte;
    if (used == image.bytesPerLine())
        return;
    for (int y = 0; y < image.height(); ++y)
        std::fill(image.scanLine(y) + used, image.scanLine(y) + image.bytesPerLine(), uchar{0});
}

} // namespace

Picture::Picture(QImage image, int scale) : m_image(std::move(image)), m_scale(scale) {}

Picture::Picture(QImage image, Picture finer)
    : m_image(std::move(image)), m_finer(std::move(finer.m_image)), m_finerScale(finer.m_scale)
{
}

Picture Picture::ForScale(int scale) const
{
    return scale == 1 || m_finer.isNull() ? Picture(m_image, m_scale) : Picture(m_finer, m_finerScale);
}

qint64 Picture::Bytes() const
{
    return m_image.sizeInBytes() + m_finer.sizeInBytes();
}

void SavePicture(const Picture& picture, const QString& path)
{
    if (picture.IsEmpty())
        throw RunTimeError(ErrorNumber::InvalidPicture);
    QImage image = picture.Pixels();
    const int dotsPerMetre = qRound(LogicalPixelsPerInch * picture.Scale() * InchesPerMetre);
    if (image.dotsPerMeterX() != dotsPerMetre || image.dotsPerMeterY() != dotsPerMetre) {
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
    }
    ClearRowPadding(image);
    QBuffer buffer;
    buffer.buffer().reserve(image.sizeInBytes());
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "BMP"))
        throw RunTimeError(ErrorNumber::InvalidPicture);
    OutputFile file(path);
    file.Write(buffer.data());
    file.Close();
}

} // namespace deckforge
