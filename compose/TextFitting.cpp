// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/TextFitting.h"

#include "platform/Numbers.h"

#include <algorithm>
#include <cmath>

namespace deckforge {

namespace {

constexpr QStringView BreakCharacters = u" .:,;-_!?()/&%<>+*@$[]{}";
constexpr QStringView LineBreak = u"\r\n";

} // namespace

qsizetype BreakPosition(const PictureBox& surface, QStringView line, int width)
{
    qsizetype pos = 0;
    qsizetype brk = 0;
    double printed = 0;
    while (pos < line.size()) {
        ++pos;
        // The break test comes first, so a break character that overflows stays on the line.
        if (BreakCharacters.contains(line[pos - 1]))
            brk = pos;
        printed += surface.TextWidth(line.sliced(pos - 1, 1));
        if (printed >= width) {
            --pos;
            break;
        }
    }
    if (pos == line.size() || brk == 0)
        brk = pos;
    return std::max<qsizetype>(brk, std::min<qsizetype>(1, line.size()));
}

void WrapAndPrint(PictureBox& surface, const QString& text, const TextColumn& column)
{
    int16 line = 0;
    for (QStringView rest : QStringView(text).split(LineBreak)) {
        if (rest.isEmpty())
            line = CheckedAdd(line, 1);
        while (!rest.isEmpty()) {
            const QString piece = rest.first(BreakPosition(surface, rest, column.Width)).toString();
            const double centre = column.Width / 2.0 - surface.TextWidth(piece) / 2;
            const double x = column.Left + (column.Form == LineForm::Centred ? centre : 0);
            PrintAt(surface, x, column.Top + line * surface.TextHeight(piece), piece);
            line = CheckedAdd(line, 1);
            rest = rest.sliced(piece.size());
        }
    }
}

double Aligned(const Box& box, double textWidth)
{
    const int left = box.OnCard().x();
    switch (box.Align) {
    case Alignment::Right:
        return left + box.Width - textWidth;
    case Alignment::Centre:
        return std::floor(box.Width / 2.0 - textWidth / 2) + left;
    case Alignment::Left:
        break;
    }
    return left;
}

void PrintAt(PictureBox& surface, double x, double y, const QString& text)
{
    surface.CurrentX = x;
    surface.CurrentY = y;
    surface.Print(text);
}

} // namespace deckforge
