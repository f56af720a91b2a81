// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Box.h"

namespace deckforge {

enum class LineForm { Plain, Centred };

/// The column of a text, in pixels of the surface.
struct TextColumn {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    LineForm Form = LineForm::Plain;
};

/// Prints a text wrapped to a width, in the surface's font and colour.
///
/// Lines are narrower than the width, except that a break character which overflows stays on its line. A word
/// longer than a line is split. A line has at least one character. A long text continues below its box. Error
/// 6 past 32,767 lines.
void WrapAndPrint(PictureBox& surface, const QString& text, const TextColumn& column);

/// The number of characters before the line breaks; at least one unless the line is empty.
[[nodiscard]] qsizetype BreakPosition(const PictureBox& surface, QStringView line, int width);

/// The left edge on the card of a line that is not wrapped. A text wider than its box extends past its sides.
[[nodiscard]] double Aligned(const Box& box, double textWidth);

void PrintAt(PictureBox& surface, double x, double y, const QString& text);

} // namespace deckforge
