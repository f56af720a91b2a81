// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/cDIBSection.h"
#include "support/Failures.h"
#include "support/PixelText.h"

#include <algorithm>

namespace deckforge {

namespace {

cDIBSection SectionOf(const PixelRows& rows)
{
    cDIBSection section;
    section.CreateFromPicture(PictureOf(rows));
    return section;
}

PixelRows RowsOf(const cDIBSection& section)
{
    PictureBox surface(QSize(section.Width(), section.Height()));
    const DrawingContext context = section.hdc();
    for (int y = 0; y < context.Height; ++y) {
        for (int x = 0; x < context.Width; ++x) {
            const std::uint8_t* pixel = context.Row(y) + 3 * x;
            surface.SetPixel(x, y, pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
        }
    }
    return RowsOf(surface);
}

std::vector<int> BytesOf(const cDIBSection& section)
{
    return {section.hDib().begin(), section.hDib().end()};
}

} // namespace

TEST(cDIBSection, RowsAreBottomUpInBlueGreenRedAndPaddedToFourBytes)
{
    for (const auto& [width, bytes] :
         {std::pair{1, 4}, {4, 12}, {7, 24}, {151, 456}, {152, 456}, {153, 460}}) {
        cDIBSection section;
        ASSERT_TRUE(section.Create(width, 2));
        EXPECT_EQ(section.BytesPerScanLine(), bytes);
        EXPECT_EQ(section.hDib().size(), static_cast<std::size_t>(2 * bytes));
    }
    const cDIBSection section = SectionOf({"r", "b"});
    EXPECT_EQ(BytesOf(section), (std::vector<int>{255, 0, 0, 0, 0, 0, 255, 0}));
}

TEST(cDIBSection, AFailedCreationLeavesItEmpty)
{
    cDIBSection section = SectionOf({"r"});
    EXPECT_FALSE(section.Create(0, 5));
    EXPECT_FALSE(section.Create(5, -1));
    EXPECT_FALSE(section.Create(2000000000, 2000000000));
    section.CreateFromPicture(Picture());
    EXPECT_TRUE(section.hdc().IsEmpty());
    EXPECT_EQ(section.Width(), 0);
    EXPECT_EQ(section.Resample(2, 0), nullptr);
}

TEST(cDIBSection, CopiesAreClippedToBothSurfaces)
{
    const cDIBSection source = SectionOf({"rg", "b#"});
    for (const auto& [x, y, width, height, sourceX, sourceY, expected] : {
             std::tuple{0, 0, -1, -1, 0, 0, PixelRows{"rg.", "b#."}},
             {0, 0, -1, 1, 0, 0, {"rg.", "..."}}, // the full width of a strip
             {0, 0, 1, -1, 0, 0, {"r..", "b.."}},
             {0, 0, 0, -1, 0, 0, {"...", "..."}}, // extent 0 copies nothing
             {0, 0, -1, 0, 0, 0, {"...", "..."}},
             {2, 1, -1, -1, 0, 0, {"...", "..r"}},
             {-1, 0, -1, -1, 0, 0, {"g..", "#.."}},
             {0, 0, -1, -1, 1, 1, {"#..", "..."}},
             {0, 0, -1, -1, -1, 0, {".r.", ".b."}},
             {5, 0, -1, -1, 0, 0, {"...", "..."}},
         }) {
        const cDIBSection target = SectionOf({"...", "..."});
        source.PaintPicture(target.hdc(), x, y, width, height, sourceX, sourceY);
        EXPECT_EQ(RowsOf(target), expected);
    }
    cDIBSection taken = SectionOf({"...", "..."});
    taken.LoadPictureBlt(source.hdc(), 1, 0);
    EXPECT_EQ(RowsOf(taken), (PixelRows{"g..", "#.."}));
    taken.LoadPictureBlt(source.hdc(), 0, 0, 0, -1);
    taken.LoadPictureBlt(source.hdc(), 0, 0, -1, 0);
    EXPECT_EQ(RowsOf(taken), (PixelRows{"g..", "#.."})) << "no extent is none";
    taken.LoadPictureBlt(source.hdc(), 0, 0, 1, 1);
    EXPECT_EQ(RowsOf(taken), (PixelRows{"r..", "#.."}));
}

TEST(cDIBSection, ResampleInterpolatesAndNeverReachesTheLastPixel)
{
    cDIBSection section;
    ASSERT_TRUE(section.Create(2, 1));
    std::uint8_t* bits = section.hdc().Row(0);
    std::fill_n(bits, 3, std::uint8_t{0});
    std::fill_n(bits + 3, 3, std::uint8_t{101});
    const auto wider = section.Resample(1, 4);
    ASSERT_NE(wider, nullptr);
    // Steps of (2 - 1) / 4: 0, 25.25, 50.5 (rounded to even), 75.75.
    EXPECT_EQ(BytesOf(*wider), (std::vector<int>{0, 0, 0, 25, 25, 25, 50, 50, 50, 76, 76, 76}));
    const auto same = SectionOf({"rg", "b#"}).Resample(2, 2);
    EXPECT_EQ(RowsOf(*same), (PixelRows{"rg", "b#"}));
    const auto fromOnePixel = SectionOf({"r"}).Resample(2, 3);
    EXPECT_EQ(RowsOf(*fromOnePixel), (PixelRows{"rrr", "rrr"}));
}

TEST(cDIBSection, TestPatternsReachItsLastColumnWithoutBlueOrInGrey)
{
    cDIBSection section;
    ASSERT_TRUE(section.Create(8, 4));
    for (const bool isGrey : {true, false}) { // the second pattern overwrites the first
        section.RandomiseBits(isGrey);
        int found = 0;
        for (int y = 0; y < 4; ++y) {
            const std::uint8_t* last = section.hdc().Row(y) + 3 * 7;
            EXPECT_EQ(last[0], isGrey ? last[1] : 0);
            EXPECT_TRUE(!isGrey || last[1] == last[2]);
            found |= last[1] << 8 | last[2];
        }
        EXPECT_TRUE((found & 0xFF) != 0 && found > 0xFF);
    }
}

} // namespace deckforge
