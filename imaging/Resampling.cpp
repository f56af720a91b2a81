// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/Resampling.h"

#include "imaging/DrawingFormat.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace deckforge {

namespace {

constexpr int Channels = 4;

/// The four pixels of a row or column that make up one pixel of the result.
struct Tap {
    std::array<int, 4> At;
    std::array<float, 4> Weight;
};

/// The Catmull-Rom curve: it runs through the pixels, and edges stay sharper than between straight lines.
float Weight(float distance)
{
    const float d = std::abs(distance);
    if (d < 1)
        return 1.5F * d * d * d - 2.5F * d * d + 1;
    return d < 2 ? -0.5F * d * d * d + 2.5F * d * d - 4 * d + 2 : 0;
}

std::vector<Tap> Taps(int start, int length, int count, int limit)
{
    std::vector<Tap> taps(static_cast<std::size_t>(count));
    const float step = static_cast<float>(length) / static_cast<float>(count);
    float at = static_cast<float>(start) + step / 2 - 0.5F;
    for (Tap& tap : taps) {
        const int first = static_cast<int>(std::floor(at)) - 1;
        for (std::size_t i = 0; i < tap.At.size(); ++i) {
            const int pixel = first + static_cast<int>(i);
            tap.At[i] = std::clamp(pixel, 0, limit - 1);
            tap.Weight[i] = Weight(at - static_cast<float>(pixel));
        }
        at += step;
    }
    return taps;
}

/// The rows of a column of taps, as channels of floating point.
std::vector<float> Across(const QImage& image, int y, const std::vector<Tap>& columns)
{
    const uchar* const bytes = image.constScanLine(y);
    std::vector<float> row(columns.size() * Channels);
    float* sum = row.data();
    for (const Tap& tap : columns) {
        for (std::size_t i = 0; i < tap.At.size(); ++i) {
            for (int c = 0; c < Channels; ++c)
                sum[c] += tap.Weight[i] * static_cast<float>(bytes[tap.At[i] * Channels + c]);
        }
        sum += Channels;
    }
    return row;
}

/// The weighted sum of four rows of channels.
void Blend(const std::array<const float*, 4>& rows, const std::array<float, 4>& weights, uchar* target,
           int count)
{
    const auto [first, second, third, fourth] = rows;
    const auto [a, b, c, d] = weights;
    for (int i = 0; i < count; ++i) {
        const float sum = 0.5F + a * first[i] + b * second[i] + c * third[i] + d * fourth[i];
        target[i] = static_cast<uchar>(std::min(std::max(sum, 0.0F), 255.0F));
    }
}

/// Premultiplied colours stay at most their alpha.
void ClampToAlpha(uchar* pixel)
{
    constexpr int alpha = 3;
    for (int c = 0; c < alpha; ++c)
        pixel[c] = std::min(pixel[c], pixel[alpha]);
}

QImage Enlarged(const QImage& image, const QRect& part, QSize size)
{
    const std::vector<Tap> columns = Taps(part.x(), part.width(), size.width(), image.width());
    const std::vector<Tap> rows = Taps(part.y(), part.height(), size.height(), image.height());
    std::vector<std::vector<float>> lines(static_cast<std::size_t>(image.height()));
    QImage result(size, image.format());
    const bool hasAlpha = image.hasAlphaChannel();
    for (int y = 0; y < size.height(); ++y) {
        const Tap& tap = rows[static_cast<std::size_t>(y)];
        std::array<const float*, 4> line = {};
        for (std::size_t i = 0; i < line.size(); ++i) {
            std::vector<float>& kept = lines[static_cast<std::size_t>(tap.At[i])];
            if (kept.empty())
                kept = Across(image, tap.At[i], columns);
            line[i] = kept.data();
        }
        uchar* const target = result.scanLine(y);
        Blend(line, tap.Weight, target, size.width() * Channels);
        for (int x = 0; hasAlpha && x < size.width(); ++x)
            ClampToAlpha(target + x * Channels);
    }
    return result;
}

} // namespace

QImage Resampled(const QImage& image, const QRect& part, QSize size)
{
    if (size.width() < part.width())
        return image.copy(part).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return Enlarged(ForDrawing(image), part, size);
}

} // namespace deckforge
