// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/NewBack.h"
#include "compose/StandardCard.h"
#include "support/EveryKind.h"
#include "support/WorkshopTest.h"

namespace deckforge {

class OtherKindsTest : public WorkshopTest {
protected:
    OtherKindsTest()
    {
        AddOneOfEachKind(Shop.Set);
        Large().Title.clear();
        Large().Color = Cream;
    }

    LargeCard& Large() { return Shop.Set.LargeCards[1]; }
    Character& Hero() { return Shop.Set.Characters[1]; }
    NewCardBack& Back() { return Shop.Set.NewCardBacks[1]; }
    PictureBox& PieceSurface() { return Shop.Surfaces.picACardPP; }

    const QString Places = Folder.WritePicture("places.bmp", PictureOfPlaces({200, 250}));
};

TEST_F(OtherKindsTest, WithoutAPictureTheTextUsesTheWholeCard)
{
    Large().ShowPicture = Hero().ShowPicture = false;
    ASSERT_FALSE(ShowLargeCard(Shop, 1) || ShowCharacter(Shop, 1));
    EXPECT_EQ(Shop.Templates.Large.lblTitleLarge.Place(), QRect(10, 8, 286, 25));
    EXPECT_EQ(Shop.Templates.Large.lblInformationLarge.Place(), QRect(10, 32, 286, 212));
    EXPECT_EQ(Shop.Templates.Character.lblSpecial.Place(), QRect(6, 43, 266, 177));
    EXPECT_EQ(Shop.Templates.Large.picBackLarge.Surface->GetPicture().Pixels(), Shop.Art.imgChB(3).Pixels());
}

TEST_F(OtherKindsTest, MissingFilesOfOtherKindsAreReportedOnTheStandardCard)
{
    const Picture kept = PictureOf({"rr"});
    Shop.Templates.Standard.picBack.Surface->SetPicture(kept);
    Shop.Templates.Large.picBackLarge.Surface->SetPicture(kept);
    Large().CardBack = Folder.Path("none.bmp");
    ASSERT_FALSE(ShowLargeCard(Shop, 1));
    EXPECT_TRUE(Shop.Templates.Standard.picBack.Surface->GetPicture().IsEmpty());
    EXPECT_EQ(RowsOf(Shop.Templates.Large.picBackLarge.Surface->GetPicture()), PixelRows{"rr"});
    EXPECT_TRUE(User.Boxes.empty());

    for (const int16 unlisted : {int16{7}, int16{-1}}) {
        Hero().CardBack = unlisted;
        EXPECT_FALSE(ShowCharacter(Shop, 1));
        EXPECT_EQ(RowsOf(Shop.Templates.Character.picCharacterBack.Surface->GetPicture()),
                  RowsOf(Shop.Art.imgChB(0)));
    }
}

TEST_F(OtherKindsTest, ThePieceNameIsPrintedInThePreviousFontAndThePieceFontIsSetOnTheCard)
{
    Header().FontPlayingPiece.Color = Red;
    ASSERT_FALSE(ShowCharacter(Shop, 1));
    EXPECT_EQ(PieceSurface().GetPixel(8, 8), Black) << "the first cut line has the colour of a new surface";
    ASSERT_FALSE(ShowCharacter(Shop, 1));
    ExpectPixels(PieceSurface(), {{8, 8, LightGrey}, {141, 246, LightGrey}});
    EXPECT_TRUE(InkIn(PieceSurface(), {10, 30, 130, 200}, White).isNull()) << "no picture, no field";

    Shop.Set.Cards.Current = 1;
    ASSERT_FALSE(ShowCard(Shop, 1));
    EXPECT_EQ(Surface().GetPixel(5, 60), Red) << "the next outline inherits the piece's colour";
    ASSERT_FALSE(ShowCard(Shop, 1));
    EXPECT_EQ(Surface().GetPixel(5, 60), LightGrey);

    Hero().PlayingPiece = Places;
    Hero().PlayingPieceTop = -15 * 20;
    ASSERT_FALSE(ShowCharacter(Shop, 1));
    ExpectPixels(PieceSurface(),
                 {{9, 24, ColourOfPlace(0, 20)}, {9 + 131, 24 + 221, ColourOfPlace(131, 241)}});
}

TEST_F(OtherKindsTest, AnAttributeOfTwoDigitsFitsItsStrip)
{
    CharacterTemplate& boxes = Shop.Templates.Character;
    for (const int strip : {0, 2}) {
        DrawCharAttribute(boxes, Shop.Surfaces.picCharAttribute, strip, "10");
        const QRect ink =
            InkIn(*boxes.picCharAttrDisp[static_cast<std::size_t>(strip)].Surface, {0, 0, 12, 52}, Black);
        EXPECT_GE(ink.top(), 1) << strip;
        EXPECT_LE(ink.bottom(), 50) << strip;
    }
}

TEST_F(OtherKindsTest, ABackHasItsThreeColoursAndAboveScale1SmoothEdges)
{
    Back().BackText.clear();
    const QPoint pieces[] = {{17, 15},  {54, 13},  {88, 13},   {124, 13},  {160, 13},  {191, 13},
                             {232, 13}, {15, 56},  {237, 54},  {15, 92},   {237, 91},  {16, 133},
                             {54, 133}, {92, 133}, {123, 133}, {164, 133}, {194, 133}, {226, 133}};
    for (const int scale : {1, 2, 3, 4, 7}) {
        Workshop shop(scale);
        (void)InitForm(shop);
        for (const Colour outer :
             {0x708090, 0x405060,
              0x102030}) { // different from both, equal to the frame, equal to the inner colour
            SCOPED_TRACE(testing::Message() << "scale " << scale << ", outer colour " << outer);
            shop.Set = Shop.Set;
            NewCardBack& back = shop.Set.NewCardBacks[1];
            back.BackColor = outer;
            back.FrameColor = 0x405060;
            back.InnerColor = 0x102030;
            ShowNewCardBack(shop, 1);
            const PictureBox& design = *shop.Templates.NewBack.picNewBack.Surface;
            const QImage pixels = design.Image().Pixels();
            EXPECT_EQ(pixels.size(), QSize(254, 150) * scale);
            const QRect between = Where(pixels.rect(), [&](int x, int y) {
                const Colour colour = FromRgb(pixels.pixel(x, y));
                return colour != 0x102030 && colour != 0x405060 && colour != outer;
            });
            EXPECT_EQ(between.isNull(), scale == 1);
            ExpectPixels(design, {{1, 1, outer}, {50, 50, 0x102030}});
            for (const QPoint piece : pieces)
                EXPECT_EQ(design.GetPixel(piece.x(), piece.y()), 0x405060) << piece.x();
        }
    }
}

TEST_F(OtherKindsTest, ABackIsRotatedAndShiftedLeftByTwoPixels)
{
    ShowNewCardBack(Shop, 1);
    const Box& title = Shop.Templates.NewBack.lblBackTitle;
    EXPECT_NEAR(title.Left + title.Width / 2.0, 128, 1) << "the title, in the preview";
    EXPECT_NEAR(title.Top + title.Height / 2.0, 76, 1);
    Back().BackText.clear();
    Back().UsePicture = true;
    Back().Picture = Places;
    DrawNewCardBack(Shop, 1);
    EXPECT_EQ(Surface().Size(), QSize(152, 256));
    EXPECT_EQ(Surface().GetPixel(152 - 10 - 3, 20), ColourOfPlace(20, 10));

    Back().Picture = Folder.Path("none.bmp");
    EXPECT_EQ(FailureOf([&] { ShowNewCardBack(Shop, 1); }), 53);
}

TEST_F(OtherKindsTest, MovingThePictureDoesNotMoveTheHandle)
{
    LargeCardTemplate& large = Shop.Templates.Large;
    CharacterTemplate& character = Shop.Templates.Character;
    Shop.Set.LargeCards[1].FrameHeight = Hero().FrameHeight = 100;
    large.lblPicSizeLarge.Left = character.lblPicSizeCharacter.Left = 0;
    PlaceLargePicture(Shop.Templates.Large, Shop.Set.LargeCards[1]);
    PlaceCharacterPicture(Shop.Templates.Character, Shop.Set.Characters[1]);
    EXPECT_EQ(large.lblPicSizeLarge.Left, large.picFrameLarge.Left + 100);
    EXPECT_EQ(character.lblPicSizeCharacter.Left, character.picFrameCharacter.Left + 100);
}

} // namespace deckforge
