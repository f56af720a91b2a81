// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Box.h"

namespace deckforge {

enum class LineForm { Plain, Centred };

/// Where a text is set. Pixels of the surface.
struct TextColumn {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    LineForm Form = LineForm::Plain;
};

/// Breaks a text to a width and prints it line by line with the surface's font and colour.
///
/// A printed line is narrower than the width, but that a break character which overflows stays on the line it
/// ends. A word longer than the line is cut where it overflows. Nothing is clipped at the bottom: a long text
/// runs on below its box. In a column narrower than one character each line takes one character. Error 6
/// behind 32,767 lines.
void WrapAndPrint(PictureBox& surface, const QString& text, const TextColumn& column);

/// How many characters of the line are printed before it breaks; at least one, if there is one.
[[nodiscard]] qsizetype BreakPosition(const PictureBox& surface, QStringView line, int width);

// One line in a box, never wrapped: a text wider than its box runs over its sides.

[[nodiscard]] double RightAligned(const Box& box, double textWidth);
[[nodiscard]] double Centred(const Box& box, double textWidth);

void PrintAt(PictureBox& surface, double x, double y, const QString& text);

} // namespace deckforge
