#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/NewBack.h"
#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "core/modInfo.h"
#include "support/Failures.h"
#include "support/PixelText.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <set>

namespace deckforge {

namespace {

constexpr Colour Cream = 0xD0FFFF;
constexpr Colour Red = 0x0000FF;

class OtherKindsTest : public testing::Test {
protected:
    OtherKindsTest() : Shop(User)
    {
        InitForm(Shop);
        AddElement(Shop.Set, LargeKind);
        AddElement(Shop.Set, CharacterKind);
        AddElement(Shop.Set, NewBackKind);
        Large().Title.clear();
        Large().Color = Cream;
        Places = Folder.Path(QStringLiteral("places.bmp"));
        SavePicture(PictureOfPlaces({200, 250}), Places);
    }

    LargeCard& Large() { return Shop.Set.LargeCards[1]; }
    Character& Hero() { return Shop.Set.Characters[1]; }
    NewCardBack& Back() { return Shop.Set.NewCardBacks[1]; }
    PictureBox& Surface() { return Shop.Surfaces.picACard; }
    PictureBox& PieceSurface() { return Shop.Surfaces.picACardPP; }

    static bool HasInk(const PictureBox& surface, QRect area, Colour ground)
    {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (surface.GetPixel(x, y) != ground)
                    return true;
            }
        }
        return false;
    }

    TestFolder Folder;
    ScriptedUser User;
    Workshop Shop;
    QString Places;
};

} // namespace

TEST_F(OtherKindsTest, ALargeCardHasItsPictureAtTheLeftAndItsTextBeside)
{
    Large().Picture = Places;
    Large().FrameHeight = 100;
    Large().PictureLeft = -15 * 30;
    ASSERT_TRUE(ShowLargeCard(Shop, 1));
    EXPECT_EQ(Surface().Size(), QSize(304, 256));
    EXPECT_EQ(Surface().GetPixel(9, 9), ColourOfPlace(30, 0));
    EXPECT_EQ(Surface().GetPixel(8, 100), LightGrey);
    const LargeCardTemplate& t = Shop.Templates.Large;
    EXPECT_EQ(t.lblPicSizeLarge.Left, 108);
    EXPECT_EQ(t.lblTitleLarge.Place(), QRect(113, 8, 183, 25));
    EXPECT_EQ(t.lblInformationLarge.Place(), QRect(113, 32, 183, 212));
    EXPECT_EQ(t.picBackLarge.Surface->GetPicture().Pixels(), Shop.Art.imgChB(3).Pixels());

    Large().ShowPicture = false;
    ASSERT_TRUE(ShowLargeCard(Shop, 1));
    EXPECT_EQ(t.lblInformationLarge.Left, 10);
    EXPECT_EQ(t.lblInformationLarge.Width, 286);
}

TEST_F(OtherKindsTest, OnALargeCardResizeWorksUpAndDown)
{
    Large().Picture = Places;
    Large().Resize = true;
    Large().PictureTop = 15 * 3;
    ASSERT_TRUE(ShowLargeCard(Shop, 1));
    EXPECT_EQ(Shop.Templates.Large.picFrameLarge.Place(), QRect(8, 11, 121, 250));
    EXPECT_EQ(Shop.Templates.Large.picImageLarge.Top, 0);
    EXPECT_EQ(Surface().GetPixel(9, 12), ColourOfPlace(0, 0));
    EXPECT_EQ(Surface().GetPixel(8 + 119, 12), ColourOfPlace(118, 0));
}

TEST_F(OtherKindsTest, ALargeCardsNumberStandsAtTheStandardCardsHeight)
{
    Shop.Set.Header.Autonumber = true;
    Shop.Set.Header.FontAutonumber.Size = 7;
    ASSERT_TRUE(ShowLargeCard(Shop, 1));
    Shop.Templates.Standard.lblAutonumber.Top = 200;
    ASSERT_TRUE(ShowLargeCard(Shop, 1));
    EXPECT_TRUE(HasInk(Surface(), {0, 200, 8, 11}, Cream));
    EXPECT_FALSE(HasInk(Surface(), {0, 246, 8, 9}, Cream));
}

TEST_F(OtherKindsTest, MissingFilesOfOtherKindsAreToldOnTheStandardCard)
{
    const Picture kept = PictureOf({"rr"});
    Shop.Templates.Standard.picBack.Surface->SetPicture(kept);
    Shop.Templates.Large.picBackLarge.Surface->SetPicture(kept);
    Large().CardBack = Folder.Path(QStringLiteral("none.bmp"));
    ASSERT_TRUE(ShowLargeCard(Shop, 1));
    EXPECT_TRUE(Shop.Templates.Standard.picBack.Surface->GetPicture().IsEmpty());
    EXPECT_EQ(RowsOf(Shop.Templates.Large.picBackLarge.Surface->GetPicture()), PixelRows{"rr"});
    EXPECT_TRUE(User.Boxes.empty());

    for (const int16 unlisted : {int16{7}, int16{-1}}) {
        Hero().CardBack = unlisted;
        EXPECT_TRUE(ShowCharacter(Shop, 1));
        EXPECT_EQ(RowsOf(Shop.Templates.Character.picCharacterBack.Surface->GetPicture()),
                  RowsOf(Shop.Art.imgChB(0)));
    }
}

TEST_F(OtherKindsTest, ACharactersPictureLiesOnThePanel)
{
    Hero().Picture = Places;
    Hero().PictureLeft = 15 * 4;
    ASSERT_TRUE(ShowCharacter(Shop, 1));
    EXPECT_EQ(Surface().GetPixel(13 + 1 + 3, 14 + 5), White);
    EXPECT_EQ(Surface().GetPixel(13 + 1 + 4, 14), ColourOfPlace(0, 0))
        << "without an outline it starts at the edge";
    EXPECT_EQ(Surface().GetPixel(13 + 1 + 120, 14 + 219), ColourOfPlace(116, 219));
    Hero().Frame = true;
    ASSERT_TRUE(ShowCharacter(Shop, 1));
    EXPECT_EQ(Shop.Templates.Character.picFrameCharacter.Height, 218);
    EXPECT_EQ(Surface().GetPixel(13 + 1 + 4 + 1, 14 + 1), ColourOfPlace(0, 0));
    const CharacterTemplate& t = Shop.Templates.Character;
    EXPECT_EQ(t.lblStart.Place(), QRect(169, 15, 103, 12));
    ShowPictureFrame(Shop.Templates.Character, false);
    EXPECT_EQ(t.lblSpecial.Left, 6);
    EXPECT_EQ(t.lblSpecial.Width, 266);
}

TEST_F(OtherKindsTest, AttributesStandOnTheirSidesAndReadBothWays)
{
    const auto strip = [&](std::size_t i) -> const PictureBox& {
        return *Shop.Templates.Character.picCharAttrDisp[i].Surface;
    };
    DrawCharAttribute(Shop, 0, QStringLiteral("---"));
    EXPECT_EQ(strip(0).Size(), QSize(12, 52));
    const auto inkOf = [&](std::size_t i) {
        QRect ink;
        for (int y = 0; y < 52; ++y) {
            for (int x = 0; x < 12; ++x) {
                if (strip(i).GetPixel(x, y) != Black)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    };
    const QRect word = inkOf(0);
    EXPECT_NEAR(word.center().y(), 26, 1);
    DrawCharAttribute(Shop, 0, QStringLiteral("+1"));
    const QRect withPlus = inkOf(0);
    DrawCharAttribute(Shop, 0, QStringLiteral("+1 "));
    DrawCharAttribute(Shop, 0, QStringLiteral("1"));
    const QRect withBlank = inkOf(0);
    EXPECT_GT(withPlus.height(), word.height());
    EXPECT_GT(withBlank.height(), word.height());

    // Clockwise the letters stand on the left side of the strip, counter-clockwise on the right.
    DrawCharAttribute(Shop, 1, QStringLiteral("5"));
    DrawCharAttribute(Shop, 3, QStringLiteral("5"));
    EXPECT_NEAR(inkOf(1).center().x() + inkOf(3).center().x(), 11, 2);
    std::set<Colour> colours;
    for (int y = 0; y < 52; ++y)
        colours.insert(strip(3).GetPixel(6, y));
    for (const Colour colour : colours)
        EXPECT_EQ(colour & 0xFF00FF, 0) << "lives are green";
}

TEST_F(OtherKindsTest, ThePiecePrintsItsNameInWhatTheSurfaceHadAndDressesTheCard)
{
    Shop.Set.Header.FontPlayingPiece.Color = Red;
    ASSERT_TRUE(ShowCharacter(Shop, 1));
    EXPECT_TRUE(PieceSurface().GetPixel(8, 8) == Black)
        << "the first cut line has the colour of a new surface";
    ASSERT_TRUE(ShowCharacter(Shop, 1));
    EXPECT_EQ(PieceSurface().GetPixel(8, 8), LightGrey);
    EXPECT_EQ(PieceSurface().GetPixel(141, 246), LightGrey);
    EXPECT_FALSE(HasInk(PieceSurface(), {10, 30, 130, 200}, White)) << "no picture, no field";

    Shop.Set.CurrentCard = 1;
    ASSERT_TRUE(ShowCard(Shop, 1));
    EXPECT_EQ(Surface().GetPixel(5, 60), Red) << "the next outline inherits the piece's colour";
    ASSERT_TRUE(ShowCard(Shop, 1));
    EXPECT_EQ(Surface().GetPixel(5, 60), LightGrey);

    Hero().PlayingPiece = Places;
    Hero().PlayingPieceTop = -15 * 20;
    ASSERT_TRUE(ShowCharacter(Shop, 1));
    EXPECT_EQ(PieceSurface().GetPixel(9, 24), ColourOfPlace(0, 20));
    EXPECT_EQ(PieceSurface().GetPixel(9 + 131, 24 + 221), ColourOfPlace(131, 241));
}

TEST_F(OtherKindsTest, ABackHasItsThreeColoursAndNoOther)
{
    Back().BackText.clear();
    Back().InnerColor = 0x102030;
    Back().FrameColor = 0x405060;
    for (const Colour outer : {Colour{0x708090}, Back().FrameColor, Back().InnerColor}) {
        Back().BackColor = outer;
        ShowNewCardBack(Shop, 1);
        const PictureBox& design = *Shop.Templates.NewBack.picNewBack.Surface;
        std::set<Colour> colours;
        for (int y = 0; y < design.Height(); ++y) {
            for (int x = 0; x < design.Width(); ++x)
                colours.insert(design.GetPixel(x, y));
        }
        EXPECT_EQ(colours, (std::set<Colour>{Back().InnerColor, Back().FrameColor, outer}));
        EXPECT_EQ(design.GetPixel(1, 1), outer);
        EXPECT_EQ(design.GetPixel(50, 50), Back().InnerColor);
        for (const QPoint piece : {QPoint(17, 15), QPoint(124, 13), QPoint(237, 91), QPoint(226, 133)})
            EXPECT_EQ(design.GetPixel(piece.x(), piece.y()), Back().FrameColor);
    }
}

TEST_F(OtherKindsTest, ABackIsTurnedUprightTwoPixelsToTheLeft)
{
    Back().BackText.clear();
    Back().UsePicture = true;
    Back().Picture = Places;
    ShowNewCardBack(Shop, 1);
    DrawNewCardBack(Shop, 1);
    EXPECT_EQ(Surface().Size(), QSize(152, 256));
    EXPECT_EQ(Surface().GetPixel(152 - 10 - 3, 20), ColourOfPlace(20, 10));

    Back().Picture = Folder.Path(QStringLiteral("none.bmp"));
    EXPECT_EQ(FailureOf([&] { ShowNewCardBack(Shop, 1); }), 53);
}

TEST_F(OtherKindsTest, ABacksTextIsCentredAndBreaksAtBarsOnlyAmongLines)
{
    const auto rowsOfText = [&](const char* text) {
        Back().BackText = QString::fromLatin1(text);
        ShowNewCardBack(Shop, 1);
        DrawNewCardBack(Shop, 1);
        int rows = 0;
        bool wasInk = false;
        for (int y = 30; y < 120; ++y) {
            const bool isInk = HasInk(PieceSurface(), {40, y, 170, 1}, Black);
            rows += isInk && !wasInk ? 1 : 0;
            wasInk = isInk;
        }
        return rows;
    };
    EXPECT_EQ(rowsOfText("HHH"), 1);
    const Box& title = Shop.Templates.NewBack.lblBackTitle;
    EXPECT_NEAR(title.Top + title.Height / 2.0, 76, 0.5);
    EXPECT_NEAR(title.Left + title.Width / 2.0, 128, 0.5);
    EXPECT_EQ(rowsOfText("H|H"), 1);
    EXPECT_EQ(rowsOfText("H\r\nH"), 2);
    EXPECT_EQ(rowsOfText("H|H\r\nH"), 3);
    EXPECT_EQ(rowsOfText(""), 0);
}

} // namespace deckforge
