#include "compose/ClipRule.h"
#include "support/Failures.h"

namespace deckforge {

TEST(ClipRule, TellsSourceAndTargetForEveryPlaceOfThePicture)
{
    const QSize frame(139, 105);
    const QSize small(50, 40);
    const QSize large(200, 160);
    const auto pixels = [](int count) { return 15.0 * count; };
    struct Case {
        const char* What;
        ClipInput In;
        std::optional<Clip> Expected;
    };
    const auto place = [&](QSize picture, int left, int top, int inset) {
        return ClipInput{.Frame = frame,
                         .Picture = picture,
                         .PictureLeft = pixels(left),
                         .PictureTop = pixels(top),
                         .FrameInset = inset};
    };
    const auto hugging = [](ClipInput in, bool width) {
        (width ? in.FrameHugsWidth : in.FrameHugsHeight) = true;
        return in;
    };
    const auto clip = [](QRect source, QPoint target) { return Clip{source, target}; };
    const Case cases[] = {
        {"as large as it is, in the corner", place(small, 0, 0, 0), clip({0, 0, 50, 40}, {0, 0})},
        {"inside the outline", place(small, 0, 0, 1), clip({0, 0, 50, 40}, {1, 1})},
        {"moved: the source reaches past it", place(small, 10, 20, 0), clip({0, 0, 60, 60}, {10, 20})},
        {"too large", place(large, 0, 0, 1), clip({0, 0, 138, 104}, {1, 1})},
        {"too large without outline", place(large, 0, 0, 0), clip({0, 0, 139, 105}, {0, 0})},
        {"cut at the left: as wide as the frame", place(large, -20, 0, 1), clip({20, 0, 139, 104}, {1, 1})},
        {"cut at the top", place(large, 0, -50, 1), clip({0, 50, 138, 105}, {1, 1})},
        {"its right end left in the frame", place(small, -20, 0, 0), clip({20, 0, 30, 40}, {0, 0})},
        {"past the right side", place(large, 100, 0, 1), clip({0, 0, 38, 104}, {101, 1})},
        {"its last column", place(small, -49, 0, 0), clip({49, 0, 1, 40}, {0, 0})},
        {"gone to the left", place(small, -50, 0, 0), std::nullopt},
        {"gone to the right", place(small, 139, 0, 0), std::nullopt},
        {"gone to the right, under the outline", place(small, 138, 0, 1), std::nullopt},
        {"gone to the bottom", place(small, 0, 105, 0), std::nullopt},
        {"the frame has moved in its stead", hugging(place(large, 30, 0, 1), true),
         clip({0, 0, 137, 104}, {1, 1})},
        {"... and it is cut at the left all the same", hugging(place(large, -30, 0, 0), true),
         clip({30, 0, 137, 105}, {0, 0})},
        {"the frame has moved down", hugging(place(large, 0, 30, 1), false), clip({0, 0, 138, 103}, {1, 1})},
    };
    for (const Case& c : cases) {
        const std::optional<Clip> made = ClipPicture(c.In);
        ASSERT_EQ(made.has_value(), c.Expected.has_value()) << c.What;
        if (!made)
            continue;
        EXPECT_EQ(made->Source, c.Expected->Source) << c.What;
        EXPECT_EQ(made->Target, c.Expected->Target) << c.What;
    }
}

TEST(ClipRule, RoundsOffsetsToTheNearestPixelHalvesToEven)
{
    ClipInput in{.Frame = {10, 10}, .Picture = {5, 5}};
    in.PictureLeft = 7.5; // half a pixel
    in.PictureTop = 22.5; // a pixel and a half
    EXPECT_EQ(ClipPicture(in)->Target, QPoint(0, 2));
    in.PictureLeft = 1e300;
    EXPECT_EQ(FailureOf([&] { (void)ClipPicture(in); }), 6);
}

} // namespace deckforge
