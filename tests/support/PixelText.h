// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/PictureBox.h"

#include <string>
#include <vector>

namespace deckforge {

/// A picture as text, with a letter per pixel and an entry per row.
using PixelRows = std::vector<std::string>;

/// The letters of the colours; any other colour is "?".
constexpr std::string_view PixelLetters = ".#rgb";
constexpr Colour PixelColours[] = {White, Black, 0x0000FF, 0x00FF00, 0xFF0000};

PixelRows RowsOf(const PictureBox& surface);
PixelRows RowsOf(const Picture& picture);

struct Pixel {
    int X;
    int Y;
    Colour Expected;
};
void ExpectPixels(const PictureBox& surface, std::initializer_list<Pixel> pixels);

/// The bounding rectangle of the pixels that match; null if there are none.
template <class Condition>
QRect Where(QRect area, Condition&& holds)
{
    QRect found;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            found |= holds(x, y) ? QRect(x, y, 1, 1) : QRect();
    }
    return found;
}

/// The bounding rectangle of the pixels that differ from the background; null if there are none.
QRect InkIn(const PictureBox& surface, QRect area, Colour ground);
/// The bounding rectangle of the dark pixels.
QRect InkIn(const QImage& image, QRect area);

/// A surface that shows the rows.
PictureBox SurfaceOf(const PixelRows& rows);
inline Picture PictureOf(const PixelRows& rows)
{
    return SurfaceOf(rows).Image();
}

/// A picture in which the colour of each pixel encodes its position.
Picture PictureOfPlaces(QSize size);
Colour ColourOfPlace(int x, int y);

} // namespace deckforge
