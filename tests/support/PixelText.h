#pragma once

#include "imaging/PictureBox.h"

#include <map>
#include <string>
#include <vector>

namespace deckforge {

/// A picture laid out as text, a letter to a pixel and an entry to a row.
using PixelRows = std::vector<std::string>;

/// The letters and the colours they stand for; what is none of them is shown as "?".
inline const std::map<char, Colour>& PixelLetters()
{
    static const std::map<char, Colour> letters = {{'.', White},    {'#', Black},    {'r', 0x0000FF},
                                                   {'g', 0x00FF00}, {'b', 0xFF0000}, {'y', 0x00FFFF}};
    return letters;
}

PixelRows RowsOf(const PictureBox& surface);
PixelRows RowsOf(const Picture& picture);

/// A surface that shows the rows.
PictureBox SurfaceOf(const PixelRows& rows);
Picture PictureOf(const PixelRows& rows);

/// A picture in which the colour of each pixel tells its place, so that a copy shows where it came from.
Picture PictureOfPlaces(QSize size);
Colour ColourOfPlace(int x, int y);

} // namespace deckforge
