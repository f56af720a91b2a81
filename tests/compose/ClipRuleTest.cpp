// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/ClipRule.h"
#include "support/Failures.h"

namespace deckforge {

TEST(ClipRule, GivesSourceAndTargetForEveryPositionOfThePicture)
{
    const QSize small(50, 40);
    const QSize large(200, 160);
    enum Hugs { Neither, ItsWidth, ItsHeight };
    const QRect none;
    const std::tuple<const char*, QSize, QPoint, int, Hugs, QRect, QPoint> rows[] = {
        {"moved: the source reaches past it", small, {10, 20}, 0, Neither, {0, 0, 60, 60}, {10, 20}},
        {"too large", large, {0, 0}, 1, Neither, {0, 0, 138, 104}, {1, 1}},
        {"cut at the left: as wide as the frame", large, {-20, 0}, 1, Neither, {20, 0, 139, 104}, {1, 1}},
        {"its right end left in the frame", small, {-20, 0}, 0, Neither, {20, 0, 30, 40}, {0, 0}},
        {"past the right side", large, {100, 0}, 1, Neither, {0, 0, 38, 104}, {101, 1}},
        {"gone to the left", small, {-50, 0}, 0, Neither, none, {}},
        {"gone to the right, under the outline", small, {138, 0}, 1, Neither, none, {}},
        {"the frame has moved in its stead", large, {30, 0}, 1, ItsWidth, {0, 0, 137, 104}, {1, 1}},
        {"and is cut at the left", large, {-30, 0}, 0, ItsWidth, {30, 0, 137, 105}, {0, 0}},
        {"the frame has moved down", large, {0, 30}, 1, ItsHeight, {0, 0, 138, 103}, {1, 1}},
    };
    for (const auto& [what, picture, offset, inset, hugs, source, target] : rows) {
        SCOPED_TRACE(what);
        const std::optional<Clip> made = ClipPicture({.Frame = {139, 105},
                                                      .Picture = picture,
                                                      .PictureLeft = 15.0 * offset.x(),
                                                      .PictureTop = 15.0 * offset.y(),
                                                      .FrameInset = inset,
                                                      .FrameHugsWidth = hugs == ItsWidth,
                                                      .FrameHugsHeight = hugs == ItsHeight});
        EXPECT_EQ(made.has_value(), source != none);
        EXPECT_EQ(made.value_or(Clip{}).Source, source);
        EXPECT_EQ(made.value_or(Clip{}).Target, target);
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
