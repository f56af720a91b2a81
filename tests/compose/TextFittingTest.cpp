// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/TextFitting.h"
#include "support/Failures.h"
#include "support/PixelText.h"

namespace deckforge {

namespace {

/// The text wrapped to a width that `letters` letters "m" just exceed.
QStringList Broken(const QString& text, int letters)
{
    PictureBox surface(QSize(200, 50));
    const int width = static_cast<int>(surface.TextWidth(QString(letters, 'm')));
    QStringList lines;
    for (QStringView rest = text; !rest.isEmpty();) {
        const qsizetype length = BreakPosition(surface, rest, width);
        lines.append(rest.first(length).toString());
        rest = rest.sliced(length);
    }
    return lines;
}

/// The inked lines of a surface, each with its first inked column.
std::vector<std::pair<int, int>> InkedLines(const PictureBox& surface, int pitch)
{
    std::vector<std::pair<int, int>> lines;
    for (int line = 0; line * pitch < surface.Height(); ++line) {
        const QRect place(0, line * pitch, surface.Width(), qMin(pitch, surface.Height() - line * pitch));
        if (const QRect ink = InkIn(surface, place, White); !ink.isNull())
            lines.emplace_back(line, ink.left());
    }
    return lines;
}

} // namespace

TEST(TextFitting, LinesBreakBehindTheLastBreakCharacterThatFits)
{
    const std::tuple<const char*, int, const char*, const char*> rows[] = // lines are separated by bars
        {{"mm mmm", 5, "mm |mmm", "at a blank"},
         {"mm-mm-mm", 6, "mm-mm-|mm", "at the last hyphen"},
         {"mmm mmm", 3 + 1, "mmm |mmm", "the blank itself fits"},
         {"mmm", 3, "mm|m", "a line that fills the width breaks"},
         {"mm@mm", 3, "mm@|mm", "a break that overflows stays"},
         {"m m", 4, "m m", "what fits is not broken"},
         {"mmmmmmm", 4, "mmm|mmm|m", "a word longer than the line is cut"},
         {"mm", 0, "m|m", "a narrow column takes a character a line"}};
    for (const auto& [text, letters, lines, why] : rows)
        EXPECT_EQ(Broken(text, letters).join('|'), lines) << why;
}

TEST(TextFitting, TextsWithoutBlanksBreakBetweenIdeographs)
{
    for (int letters = 2; letters < 12; ++letters) {
        const QString text = "mm漢字、漢字漢字🐉🐉か。mm-字";
        const QStringList lines = Broken(text, letters);
        EXPECT_EQ(lines.join(QString()), text);
        for (const QString& line : lines) {
            EXPECT_FALSE(line.front().isLowSurrogate()) << "half a letter";
            EXPECT_TRUE(letters < 4 || (line.front() != u'、' && line.front() != u'。')) << letters;
        }
    }
    EXPECT_EQ(Broken("mm mm漢字", 6).front(), "mm mm漢") << "not at the blank";
}

TEST(TextFitting, EmptyLinesHaveTheLineHeightAndCentredOnesAreCentred)
{
    PictureBox surface(QSize(40, 60));
    WrapAndPrint(surface, "H\r\n\r\nH\r\n", {.Left = 3, .Top = 0, .Width = 30});
    const auto lines = InkedLines(surface, 11);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].first, 0);
    EXPECT_EQ(lines[1].first, 2);
    EXPECT_EQ(lines[0].second, lines[1].second);

    PictureBox empty(QSize(40, 60));
    WrapAndPrint(empty, QString(), {.Left = 0, .Top = 0, .Width = 30});
    EXPECT_TRUE(InkedLines(empty, 11).empty());

    PictureBox wide(QSize(120, 22));
    WrapAndPrint(wide, "H\r\nHHHHH", {.Left = 20, .Top = 0, .Width = 80, .Form = LineForm::Centred});
    const auto centred = InkedLines(wide, 11);
    ASSERT_EQ(centred.size(), 2U);
    EXPECT_NEAR(centred[0].second, 60 - wide.TextWidth(u"H") / 2, 1.5);
    EXPECT_NEAR(centred[1].second, 60 - wide.TextWidth(u"HHHHH") / 2, 1.5);
}

TEST(TextFitting, ASingleLineIsCentredOnWholePixelsAndMayExceedBothSides)
{
    BoxList boxes(1);
    Box card(boxes, {}, {});
    Box box(card, {10, 0, 20, 0}, {.Align = Alignment::Centre});
    EXPECT_EQ(Aligned(box, 5), 17); // 7.5 is rounded down
    EXPECT_EQ(Aligned(box, 25), 7); // -2.5 is rounded down, too
    box.Align = Alignment::Right;
    EXPECT_EQ(Aligned(box, 25), 5);
}

} // namespace deckforge
