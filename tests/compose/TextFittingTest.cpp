#include "compose/TextFitting.h"
#include "support/Failures.h"

namespace deckforge {

namespace {

/// The text as it is broken to the width of as many "m" as given, less a hair so that that many do not fit.
QStringList Broken(const QString& text, int letters)
{
    PictureBox surface(QSize(200, 50));
    const int width = static_cast<int>(surface.TextWidth(QString(letters, QLatin1Char('m'))));
    QStringList lines;
    for (QStringView rest = text; !rest.isEmpty();) {
        const qsizetype length = BreakPosition(surface, rest, width);
        lines.append(rest.first(length).toString());
        rest = rest.sliced(length);
    }
    return lines;
}

/// The lines of a surface that hold ink, each with its first inked column.
std::vector<std::pair<int, int>> InkedLines(const PictureBox& surface, int pitch)
{
    std::vector<std::pair<int, int>> lines;
    for (int line = 0; line * pitch < surface.Height(); ++line) {
        int first = surface.Width();
        for (int y = line * pitch; y < (line + 1) * pitch; ++y) {
            for (int x = 0; x < first; ++x) {
                if (surface.GetPixel(x, y) != White && surface.GetPixel(x, y) != InvalidColour)
                    first = x;
            }
        }
        if (first < surface.Width())
            lines.emplace_back(line, first);
    }
    return lines;
}

} // namespace

TEST(TextFitting, LinesBreakBehindTheLastBreakCharacterThatFits)
{
    EXPECT_EQ(Broken(QStringLiteral("mm mmm"), 5),
              (QStringList{QStringLiteral("mm "), QStringLiteral("mmm")}));
    EXPECT_EQ(Broken(QStringLiteral("mm-mm-mm"), 6),
              (QStringList{QStringLiteral("mm-mm-"), QStringLiteral("mm")}));
    EXPECT_EQ(Broken(QStringLiteral("mmm mmm"), 3 + 1),
              (QStringList{QStringLiteral("mmm "), QStringLiteral("mmm")}));
}

TEST(TextFitting, ALineThatFillsTheWidthIsRefusedAndABreakThatOverflowsStays)
{
    EXPECT_EQ(Broken(QStringLiteral("mmm"), 3), (QStringList{QStringLiteral("mm"), QStringLiteral("m")}));
    EXPECT_EQ(Broken(QStringLiteral("mm@mm"), 3), (QStringList{QStringLiteral("mm@"), QStringLiteral("mm")}));
    EXPECT_EQ(Broken(QStringLiteral("m m"), 4), QStringList{QStringLiteral("m m")})
        << "what fits is not broken";
}

TEST(TextFitting, AWordLongerThanTheLineIsCutAndANarrowColumnTakesACharacterALine)
{
    EXPECT_EQ(Broken(QStringLiteral("mmmmmmm"), 4),
              (QStringList{QStringLiteral("mmm"), QStringLiteral("mmm"), QStringLiteral("m")}));
    EXPECT_EQ(Broken(QStringLiteral("mm"), 0), (QStringList{QStringLiteral("m"), QStringLiteral("m")}));
}

TEST(TextFitting, EmptyLinesTakeAPitchAndTextRunsOnBelow)
{
    PictureBox surface(QSize(40, 60));
    WrapAndPrint(surface, QStringLiteral("H\r\n\r\nH\r\n"), {.Left = 3, .Top = 0, .Width = 30});
    const auto lines = InkedLines(surface, 11);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].first, 0);
    EXPECT_EQ(lines[1].first, 2);
    EXPECT_EQ(lines[0].second, lines[1].second);

    PictureBox empty(QSize(40, 60));
    WrapAndPrint(empty, QString(), {.Left = 0, .Top = 0, .Width = 30});
    EXPECT_TRUE(InkedLines(empty, 11).empty());
}

TEST(TextFitting, CentredLinesStandInTheMiddleOfTheirColumn)
{
    PictureBox surface(QSize(120, 22));
    WrapAndPrint(surface, QStringLiteral("H\r\nHHHHH"),
                 {.Left = 20, .Top = 0, .Width = 80, .Form = LineForm::Centred});
    const auto lines = InkedLines(surface, 11);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_NEAR(lines[0].second, 60 - surface.TextWidth(u"H") / 2, 1.5);
    EXPECT_NEAR(lines[1].second, 60 - surface.TextWidth(u"HHHHH") / 2, 1.5);
}

TEST(TextFitting, OneLineIsCentredOnWholePixelsAndRunsOverBothSides)
{
    const Box box{.Name = {}, .Left = 10, .Width = 20};
    EXPECT_EQ(Centred(box, 5), 17); // 7.5 goes down
    EXPECT_EQ(Centred(box, 25), 7); // -2.5 goes down as well
    EXPECT_EQ(RightAligned(box, 25), 5);
}

} // namespace deckforge
