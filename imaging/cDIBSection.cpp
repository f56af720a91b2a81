// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/cDIBSection.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace deckforge {

namespace {

constexpr int BytesPerPixel = 3;

/// The part of a copy inside both source and target.
///
///     source                 target
///     +-----------+          +-----------+
///     |   +-------+---       | +-----+   |
///     |   | copied|   |      | |     |   |
///     +---+-------+   |      +-+-----+---+
struct Copy {
    QPoint From;
    QPoint To;
    QSize Extent;
};

Copy ClippedCopy(QSize source, QPoint from, QSize target, QPoint to, QSize extent)
{
    const int cutLeft = std::max({0, -from.x(), -to.x()});
    const int cutTop = std::max({0, -from.y(), -to.y()});
    from += QPoint(cutLeft, cutTop);
    to += QPoint(cutLeft, cutTop);
    extent -= QSize(cutLeft, cutTop);
    extent.setWidth(std::min({extent.width(), source.width() - from.x(), target.width() - to.x()}));
    extent.setHeight(std::min({extent.height(), source.height() - from.y(), target.height() - to.y()}));
    return {from, to, extent};
}

void BitBlt(const DrawingContext& target, QPoint to, QSize extent, const DrawingContext& source, QPoint from)
{
    const Copy copy =
        ClippedCopy({source.Width, source.Height}, from, {target.Width, target.Height}, to, extent);
    if (copy.Extent.isEmpty())
        return;
    for (int y = 0; y < copy.Extent.height(); ++y) {
        const std::uint8_t* read = source.Row(copy.From.y() + y) + copy.From.x() * BytesPerPixel;
        std::uint8_t* write = target.Row(copy.To.y() + y) + copy.To.x() * BytesPerPixel;
        std::memmove(write, read, static_cast<std::size_t>(copy.Extent.width()) * BytesPerPixel);
    }
}

/// The image must already be in BGR format.
DrawingContext ContextOf(QImage& image)
{
    return {image.bits(), image.width(), image.height(), image.bytesPerLine()};
}

std::uint8_t RandomByte()
{
    constexpr double top = 255;
    return static_cast<std::uint8_t>(std::nearbyint(QRandomGenerator::global()->generateDouble() * top));
}

std::uint8_t Blend(float share, std::uint8_t first, std::uint8_t second)
{
    const float mixed =
        std::nearbyint((1 - share) * static_cast<float>(first) + share * static_cast<float>(second));
    return static_cast<std::uint8_t>(std::clamp(mixed, 0.0F, 255.0F));
}

} // namespace

bool cDIBSection::CopyToClipboard() const
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (clipboard == nullptr || m_bits.empty())
        return false;
    QImage bitmap(Width(), Height(), QImage::Format_BGR888);
    PaintPicture(ContextOf(bitmap));
    clipboard->setImage(bitmap);
    return true;
}

bool cDIBSection::CreateDIB(int32 width, int32 height)
{
    if (width < 1 || height < 1 || width > std::numeric_limits<int32>::max() / BytesPerPixel - 1)
        return false;
    const std::int64_t bytes = std::int64_t{ScanLineBytes(width)} * height;
    if (bytes > std::numeric_limits<int32>::max())
        return false;
    try {
        m_bits.assign(static_cast<std::size_t>(bytes), 0);
    } catch (const std::bad_alloc&) {
        return false;
    }
    m_bitmapHeader = {};
    m_bitmapHeader.biWidth = width;
    m_bitmapHeader.biHeight = height;
    m_bitmapHeader.biSizeImage = static_cast<int32>(bytes);
    return true;
}

void cDIBSection::CreateFromPicture(const Picture& picture)
{
    const QImage image = picture.Pixels().convertToFormat(QImage::Format_RGB32);
    if (!Create(image.width(), image.height()))
        return;
    // Writing the bottom-up rows directly is four times as fast as a conversion and a copy.
    const DrawingContext target = hdc();
    for (int y = 0; y < target.Height; ++y) {
        const auto* read = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        std::uint8_t* write = target.Row(y);
        for (int x = 0; x < target.Width; ++x, write += BytesPerPixel) {
            write[0] = static_cast<std::uint8_t>(qBlue(read[x]));
            write[1] = static_cast<std::uint8_t>(qGreen(read[x]));
            write[2] = static_cast<std::uint8_t>(qRed(read[x]));
        }
    }
}

bool cDIBSection::Create(int32 width, int32 height)
{
    ClearUp();
    return CreateDIB(width, height);
}

void cDIBSection::LoadPictureBlt(const DrawingContext& source, int32 srcX, int32 srcY, int32 width,
                                 int32 height, RasterOperation /*operation*/)
{
    const QSize extent(width < 0 ? Width() : width, height < 0 ? Height() : height);
    BitBlt(hdc(), {0, 0}, extent, source, {srcX, srcY});
}

void cDIBSection::PaintPicture(const DrawingContext& target, int32 x, int32 y, int32 width, int32 height,
                               int32 srcX, int32 srcY, RasterOperation /*operation*/) const
{
    const QSize extent(width < 0 ? Width() : width, height < 0 ? Height() : height);
    BitBlt(target, {x, y}, extent, hdc(), {srcX, srcY});
}

DrawingContext cDIBSection::hdc() const
{
    if (m_bits.empty())
        return {};
    auto* bits = const_cast<std::uint8_t*>(
        m_bits.data()); // a DrawingContext is writable, even that of a const section
    const std::ptrdiff_t stride = BytesPerScanLine();
    return {bits + stride * (Height() - 1), Width(), Height(), -stride};
}

std::uint8_t* cDIBSection::MemoryRow(int row)
{
    return m_bits.data() + std::ptrdiff_t{row} * BytesPerScanLine();
}

const std::uint8_t* cDIBSection::MemoryRow(int row) const
{
    return m_bits.data() + std::ptrdiff_t{row} * BytesPerScanLine();
}

void cDIBSection::RandomiseBits(bool gray)
{
    for (int y = 0; y < Height(); ++y) {
        std::uint8_t* pixel = MemoryRow(y);
        for (int x = 0; x < Width(); ++x, pixel += BytesPerPixel) {
            if (gray) {
                std::fill_n(pixel, BytesPerPixel, RandomByte());
            } else {
                pixel[0] = 0;
                pixel[1] = RandomByte();
                pixel[2] = RandomByte();
            }
        }
    }
}

void cDIBSection::ClearUp()
{
    m_bits.clear();
    m_bits.shrink_to_fit();
    m_bitmapHeader = {};
}

std::unique_ptr<cDIBSection> cDIBSection::Resample(int32 newHeight, int32 newWidth) const
{
    auto resampled = std::make_unique<cDIBSection>();
    if (!resampled->Create(newWidth, newHeight))
        return nullptr;
    if (newWidth == Width() && newHeight == Height())
        resampled->LoadPictureBlt(hdc());
    else
        ResampleInto(*resampled);
    return resampled;
}

void cDIBSection::ResampleInto(cDIBSection& target) const
{
    const float xScale = static_cast<float>(Width() - 1) / static_cast<float>(target.Width());
    const float yScale = static_cast<float>(Height() - 1) / static_cast<float>(target.Height());
    for (int y = 0; y < target.Height(); ++y) {
        const float fy = yScale * static_cast<float>(y);
        const int iy = static_cast<int>(fy);
        const float dy = fy - static_cast<float>(iy);
        const std::uint8_t* upper = MemoryRow(iy);
        // A section one pixel wide or high has no neighbour: the pixel itself is used, with weight 0.
        const std::uint8_t* lower = MemoryRow(std::min(iy + 1, Height() - 1));
        std::uint8_t* write = target.MemoryRow(y);
        for (int x = 0; x < target.Width(); ++x) {
            const float fx = xScale * static_cast<float>(x);
            const int ix = static_cast<int>(fx);
            const float dx = fx - static_cast<float>(ix);
            const int j = ix * BytesPerPixel;
            const int right = std::min(ix + 1, Width() - 1) * BytesPerPixel;
            for (int channel = 0; channel < BytesPerPixel; ++channel) {
                const std::uint8_t p = Blend(dy, upper[j + channel], lower[j + channel]);
                const std::uint8_t q = Blend(dy, upper[right + channel], lower[right + channel]);
                *write++ = Blend(dx, p, q);
            }
        }
    }
}

} // namespace deckforge
