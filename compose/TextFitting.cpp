// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/TextFitting.h"

#include "platform/Numbers.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>
#include <vector>

namespace deckforge {

namespace {

constexpr QStringView BreakCharacters = u" .:,;-_!?()/&%<>+*@$[]{}";
constexpr QStringView LineBreak = u"\r\n";

/// Scripts without blanks between words.
bool IsIdeographic(QChar c)
{
    switch (c.script()) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
        return true;
    default:
        return c.isHighSurrogate() ||
               (c.unicode() >= 0x3000 && c.unicode() <= 0x303F); // rare ideographs, punctuation
    }
}

/// The places where a text without blanks may break: between ideographs, but not before a full stop or
/// closing bracket.
std::vector<bool> IdeographicBreaks(QStringView line)
{
    if (std::none_of(line.begin(), line.end(), IsIdeographic))
        return {};
    std::vector<bool> breaks(static_cast<std::size_t>(line.size()) + 1);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, line.toString());
    for (qsizetype at = finder.toNextBoundary(); at > 0 && at < line.size(); at = finder.toNextBoundary())
        breaks[static_cast<std::size_t>(at)] = IsIdeographic(line[at]) || IsIdeographic(line[at - 1]);
    return breaks;
}

/// The number of characters of the code point at a place.
qsizetype PointLength(QStringView line, qsizetype at)
{
    return line[at].isHighSurrogate() && at + 1 < line.size() && line[at + 1].isLowSurrogate() ? 2 : 1;
}

} // namespace

qsizetype BreakPosition(const PictureBox& surface, QStringView line, int width)
{
    qsizetype pos = 0;
    qsizetype brk = 0;
    double printed = 0;
    const std::vector<bool> ideographic = IdeographicBreaks(line);
    while (pos < line.size()) {
        if (!ideographic.empty() && ideographic[static_cast<std::size_t>(pos)])
            brk = pos;
        const qsizetype length = PointLength(line, pos);
        pos += length;
        // The break test comes first, so a break character that overflows stays on the line.
        if (BreakCharacters.contains(line[pos - 1]))
            brk = pos;
        printed += surface.TextWidth(line.sliced(pos - length, length));
        if (printed >= width) {
            pos -= length;
            break;
        }
    }
    if (pos == line.size() || brk == 0)
        brk = pos;
    return brk > 0 || line.isEmpty() ? brk : PointLength(line, 0);
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
