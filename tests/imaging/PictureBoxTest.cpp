// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/PictureBox.h"
#include "imaging/modRotatePic.h"
#include "support/Failures.h"
#include "support/PixelText.h"

namespace deckforge {

TEST(PictureBox, PicturesAreClippedAtItsEdges)
{
    const Picture picture = PictureOf({"rgb", "###"});
    const std::tuple<QPoint, QRect, PixelRows> cases[] = {
        {{1, 1}, {0, 0, 3, 2}, {"....", ".rgb", ".###"}},
        {{-1, 0}, {0, 0, 3, 2}, {"gb..", "##..", "...."}},
        {{2, 2}, {0, 0, 3, 2}, {"....", "....", "..rg"}},
        {{0, 0}, {1, 0, 5, 1}, {"gb..", "....", "...."}}, // the source extends past the picture
        {{0, 0}, {-1, 0, 2, 1}, {".r..", "....", "...."}},
        {{0, 0}, {3, 0, 2, 2}, {"....", "....", "...."}}};
    for (const auto& [target, source, expected] : cases) {
        PictureBox surface(QSize(4, 3));
        surface.PaintPart(picture, target, source);
        EXPECT_EQ(RowsOf(surface), expected);
    }
}

TEST(PictureBox, OutlinesIncludeBothCornersAndColourAndPictureClearTheDrawing)
{
    PictureBox surface(QSize(5, 4));
    surface.PaintStretched(PictureOf({"b"}), {0, 0, 4, 3});
    surface.LineBox(1, 1, 4, 3);
    EXPECT_EQ(RowsOf(surface), (PixelRows{"bbbb.", "b####", "b#bb#", ".####"}));

    surface = PictureBox(QSize(3, 1));
    surface.SetPicture(PictureOf({"r"}));
    surface.SetPixel(2, 0, Black);
    surface.SetBackColor(0x00FF00);
    EXPECT_EQ(RowsOf(surface), PixelRows{"rgg"}) << "the picture stays on top of the colour";
    surface.SetPixel(1, 0, Black);
    surface.Freeze();
    surface.Refresh();
    EXPECT_EQ(RowsOf(surface), PixelRows{"r#g"});
    EXPECT_EQ(surface.GetPixel(3, 0), InvalidColour);
    surface.SetPixel(-1, 0, Black);
    const Picture before = surface.Image();
    surface.SetPixel(0, 0, Black);
    EXPECT_EQ(RowsOf(before), PixelRows{"r#g"}) << "an image taken before is not drawn over";
}

TEST(PictureBox, FloodFillFillsTheConnectedAreaOfItsColour)
{
    PictureBox surface = SurfaceOf({"..#..", "..#.#", "###..", "....."});
    surface.FillColor = 0x0000FF;
    surface.ExtFloodFill(0, 0, White);
    EXPECT_EQ(RowsOf(surface), (PixelRows{"rr#..", "rr#.#", "###..", "....."}));
    surface.ExtFloodFill(2, 0, White); // the seed has another colour
    surface.ExtFloodFill(9, 9, White);
    EXPECT_EQ(RowsOf(surface), (PixelRows{"rr#..", "rr#.#", "###..", "....."}));
}

TEST(PictureBox, PositionsAreTheSameAtEveryScale)
{
    PictureBox fine(QSize(4, 3), 3);
    fine.PaintPart(PictureOf({"rrr", "rrr"}), {2, 1}, {0, 0, 3, 2});
    fine.LineBox(0, 0, 2, 2);
    EXPECT_EQ(RowsOf(fine), (PixelRows{"###.", "#.#r", "###r"}));
    EXPECT_EQ(fine.Image().Pixels().size(), QSize(12, 9));
    EXPECT_EQ(fine.Image().Size(), QSize(4, 3));
    // A picture taken from the finer surface keeps its logical size.
    PictureBox coarse(QSize(4, 3));
    coarse.PaintPicture(fine.Image(), 0, 0);
    EXPECT_EQ(coarse.GetPixel(3, 2), 0x0000FF);
}

TEST(PictureBox, RejectsInvalidFontsAndKeepsItsFont)
{
    PictureBox surface(QSize(10, 10));
    const TextFont before = surface.Font();
    EXPECT_EQ(FailureOf([&] { surface.SetFontName(QString()); }), 380);
    for (const double size : {0.0, -7.0, 10000.0})
        EXPECT_EQ(FailureOf([&] { surface.SetFontSize(size); }), 380) << size;
    EXPECT_TRUE(surface.Font() == before);
}

TEST(TextFont, HasThePlatformsMeasures)
{
    for (const auto& [points, pixels] : {std::pair{5., 7}, {5.25, 7}, {6, 8}, {6.75, 9}, {7, 9}, {18, 24}})
        EXPECT_EQ(PixelSize(points), pixels) << points;
    const FontMeasures measures({.Name = "Small Fonts", .Size = 7});
    EXPECT_EQ(measures.LineHeight(), 11);
    EXPECT_NEAR(
        measures.Width(u"The quick brown fox jumps over the lazy dog while the old wizard looks on and on"),
        312, 15);
    EXPECT_DOUBLE_EQ(measures.Width(u"AV fi"), measures.Width(u"A") + measures.Width(u"V") +
                                                   measures.Width(u" ") + measures.Width(u"f") +
                                                   measures.Width(u"i"));
}

TEST(TextFont, EveryCharacterIsDrawnAsWideAsItIsMeasured)
{
    PictureBox surface(QSize(400, 20));
    const QString text = "a\tb\u00ADc\u2028d\x01|";
    surface.Print(text);
    const QRect ink = InkIn(surface, {0, 0, 400, 20}, White);
    EXPECT_NEAR(ink.right(), surface.TextWidth(text), 3);
}

TEST(TextFont, TextIsInItsLineAtEveryScale)
{
    for (const int scale : {1, 4}) {
        PictureBox surface(QSize(60, 30), scale);
        surface.CurrentX = 10;
        surface.CurrentY = 8;
        surface.Print("ÅHg");
        const QImage image = surface.Image().Pixels();
        EXPECT_TRUE(image.allGray()) << "text has no colour of its own";
        const QRect line(10 * scale, 8 * scale, 30 * scale, 11 * scale);
        EXPECT_TRUE(line.contains(InkIn(image, image.rect()))) << scale;
        EXPECT_EQ(QPointF(surface.CurrentX, surface.CurrentY), QPointF(0, 19));
    }
}

TEST(RotatePicture, RotatesBothWaysAndShiftsBacks)
{
    const PictureBox source = SurfaceOf({"r...", "#..b"});
    PictureBox target(QSize(1, 1));
    RotatePicture(source, target, Turn::Clockwise);
    EXPECT_EQ(RowsOf(target), (PixelRows{"#r", "..", "..", "b."}));
    RotatePicture(source, target, Turn::CounterClockwise);
    EXPECT_EQ(RowsOf(target.GetPicture()), (PixelRows{".b", "..", "..", "r#"}));

    const PictureBox tall = SurfaceOf({"r.", "g.", "b.", "#."});
    RotatePictureShifted(tall, target, Turn::Clockwise);
    EXPECT_EQ(RowsOf(target), (PixelRows{"gr..", "...."}));
    RotatePictureShifted(tall, target, Turn::CounterClockwise);
    EXPECT_EQ(RowsOf(target), (PixelRows{"....", "rgb#"}));
}

} // namespace deckforge
