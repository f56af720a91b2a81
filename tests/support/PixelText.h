// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/PictureBox.h"

#include <string>
#include <vector>

namespace deckforge {

/// A picture laid out as text, a letter to a pixel and an entry to a row.
using PixelRows = std::vector<std::string>;

/// The letters that stand for colours; what is none of them is shown as "?".
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

/// The least rectangle around the pixels of the area for which that holds; null where there is none.
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

/// What of the area is not of the colour of its ground, as a rectangle; null where all of it is.
QRect InkIn(const PictureBox& surface, QRect area, Colour ground);
/// What of the area is dark.
QRect InkIn(const QImage& image, QRect area);

/// A surface that shows the rows.
PictureBox SurfaceOf(const PixelRows& rows);
inline Picture PictureOf(const PixelRows& rows)
{
    return SurfaceOf(rows).Image();
}

/// A picture in which the colour of each pixel tells its place, so that a copy shows where it came from.
Picture PictureOfPlaces(QSize size);
Colour ColourOfPlace(int x, int y);

} // namespace deckforge
