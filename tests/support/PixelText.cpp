// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/PixelText.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace deckforge {

namespace {

char LetterOf(Colour colour)
{
    const auto* const its = std::find(std::begin(PixelColours), std::end(PixelColours), colour);
    return its == std::end(PixelColours) ? '?' : PixelLetters[static_cast<std::size_t>(its - PixelColours)];
}

} // namespace

PixelRows RowsOf(const PictureBox& surface)
{
    PixelRows rows;
    for (int y = 0; y < surface.Height(); ++y) {
        std::string row;
        for (int x = 0; x < surface.Width(); ++x)
            row += LetterOf(surface.GetPixel(x, y));
        rows.push_back(row);
    }
    return rows;
}

PixelRows RowsOf(const Picture& picture)
{
    PictureBox surface(picture.Size());
    surface.SetPicture(picture);
    return RowsOf(surface);
}

void ExpectPixels(const PictureBox& surface, std::initializer_list<Pixel> pixels)
{
    for (const auto& [x, y, expected] : pixels)
        EXPECT_EQ(surface.GetPixel(x, y), expected) << "at " << x << ", " << y;
}

QRect InkIn(const PictureBox& surface, QRect area, Colour ground)
{
    return Where(area, [&](int x, int y) { return surface.GetPixel(x, y) != ground; });
}

QRect InkIn(const QImage& image, QRect area)
{
    return Where(area, [&](int x, int y) { return qGray(image.pixel(x, y)) < 128; });
}

PictureBox SurfaceOf(const PixelRows& rows)
{
    PictureBox surface(QSize(static_cast<int>(rows[0].size()), static_cast<int>(rows.size())));
    for (std::size_t y = 0; y < rows.size(); ++y) {
        for (std::size_t x = 0; x < rows[y].size(); ++x)
            surface.SetPixel(static_cast<int>(x), static_cast<int>(y),
                             PixelColours[PixelLetters.find(rows[y][x])]);
    }
    return surface;
}

Picture PictureOfPlaces(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, ToRgb(ColourOfPlace(x, y)));
    }
    return Picture(image);
}

Colour ColourOfPlace(int x, int y)
{
    constexpr Colour neverWhite = 0x400000;
    return neverWhite | (y & 0xFF) << 8 | (x & 0xFF);
}

} // namespace deckforge
