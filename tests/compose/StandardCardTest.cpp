// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/StandardCard.h"
#include "support/WorkshopTest.h"

namespace deckforge {

class StandardCardTest : public WorkshopTest {
protected:
    StandardCardTest()
    {
        FirstCard().Title.clear();
        FirstCard().Color = Cream;
    }

    CardTemplate& Boxes() { return Shop.Templates.Standard; }
    void Compose() { ASSERT_FALSE(ShowCard(Shop, 1)); }
    QRect InkIn(QRect area) { return deckforge::InkIn(Surface(), area, Cream); }
};

TEST_F(StandardCardTest, TheTextBoxKeepsItsHeightIfThereIsNoRoom)
{
    FirstCard().BoldText = "STRENGTH 3";
    for (const auto& [height, top] : {std::pair{int16{60}, 115}, {int16{300}, 355}}) {
        FirstCard().FrameHeight = height;
        Compose();
        EXPECT_EQ(Boxes().lblInformation.Place(), QRect(5, top, 139, 126)) << height;
    }
}

TEST_F(StandardCardTest, AFontWithoutSizeUsesThePreviousSize)
{
    FirstCard().ShowPicture = false;
    Header().FontInformation.Size = 0;
    Header().FontBold.Size = 12;
    FirstCard().BoldText = "M";
    FirstCard().Info = "MMM";
    Compose();
    EXPECT_GT(InkIn({0, 163, 152, 40}).height(), 9);
}

TEST_F(StandardCardTest, AMissingSymbolIsReportedAndTheCardHasNone)
{
    Header().Symbol = Folder.WritePicture("s.bmp", PictureOf(PixelRows(7, "rrrrrrr")));
    (void)ShowSet(Shop);
    Compose();
    EXPECT_EQ(Surface().GetPixel(0, 250), Red);
    Header().Symbol = Folder.Path("none.bmp");
    ShowViewFailures(User, {.Symbol = ShowSet(Shop)});
    EXPECT_FALSE(Boxes().picSymbol.Visible);
    EXPECT_EQ(User.LastBox().Text, "Run-time error '53':\r\n\r\nFile not found");
    Compose();
    EXPECT_EQ(Surface().GetPixel(0, 250), Cream);
}

TEST_F(StandardCardTest, TheCreditIsDrawnOverTheBackgroundOfTheCard)
{
    FirstCard().Artist = "MMMM";
    FirstCard().Background = Folder.WritePicture("b.bmp", PictureOfPlaces({150, 254}));
    Compose();
    EXPECT_TRUE(Boxes().picArtistDest.Visible);
    for (int y = 120; y < 220; ++y) {
        for (int x = 0; x < 5; ++x)
            ASSERT_EQ(Surface().GetPixel(x, y), ColourOfPlace(x, y)) << "the strip has the card's own pixels";
    }
    FirstCard().Artist.clear();
    Compose();
    EXPECT_FALSE(Boxes().picArtistDest.Visible);
    EXPECT_EQ(Surface().GetPixel(2, 45), ColourOfPlace(2, 45));
}

TEST_F(StandardCardTest, MissingPicturesAreReportedOnThePreviewAndTheRestIsComposed)
{
    FirstCard().Picture = Folder.Path("none.bmp");
    FirstCard().Background = Folder.Path("none/none.bmp");
    AddOwnBack(Shop.Set, "gone", Folder.Path("gone.bmp"));
    FirstCard().CardBack = 28;
    Compose();
    EXPECT_TRUE(User.Boxes.empty());
    ExpectPixels(Surface(), {{70, 90, White}, {2, 2, Cream}});
    EXPECT_TRUE(Boxes().picBack.Surface->GetPicture().IsEmpty());
    EXPECT_FALSE(deckforge::InkIn(*Boxes().picBack.Surface, {0, 5, 150, 1}, White).isNull())
        << "the back says what is missing";
    EXPECT_EQ(RowsOf(Boxes().picCard.Surface->Image())[5].find('#'), std::string::npos)
        << "setting the colour removes the message on the front";
    FirstCard().CardBack = 99;
    Compose();
    EXPECT_EQ(FirstCard().CardBack, 1) << "a back past the table becomes the first";
}

TEST_F(StandardCardTest, ADamagedPictureIsReportedAndTheCardIsNotComposed)
{
    Compose();
    const QImage before = Surface().Image().Pixels();
    FirstCard().Picture = Folder.Write("p.bmp", "BM and no more");
    FirstCard().Color = Black;
    ShowCompositionFailure(User, ShowCard(Shop, 1));
    EXPECT_EQ(User.BoxTexts(), QStringList("Cannot draw picture correct|Error while drawing the card.\r\n\r\n"
                                           "481, Invalid picture"));
    EXPECT_EQ(Surface().Image().Pixels(), before);
}

TEST(StandardCardAtScale, IsTheSameCardAndBreaksItsLinesAtTheSamePlaces)
{
    const auto composed = [&](int scale) {
        Workshop shop(scale);
        (void)InitForm(shop);
        shop.Set.Cards[1].Info = "Roll one die for each follower. On a 1 or 2 it leaves you; on a 6 "
                                 "you gain one strength and may move again in the next turn.";
        EXPECT_FALSE(ShowCard(shop, 1));
        return shop.Surfaces.picACard.Image().Pixels();
    };
    const QImage reference = composed(1);
    const QImage reduced =
        composed(4).scaled(reference.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int differing = 0;
    for (int y = 0; y < reference.height(); ++y) {
        for (int x = 0; x < reference.width(); ++x)
            differing += qAbs(qGray(reference.pixel(x, y)) - qGray(reduced.pixel(x, y))) > 130 ? 1 : 0;
    }
    EXPECT_LT(differing, 60) << "a line that broke elsewhere differs in hundreds of pixels";
}

} // namespace deckforge
