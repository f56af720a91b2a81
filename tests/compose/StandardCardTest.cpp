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

TEST_F(StandardCardTest, WithResizeTheFrameTakesThePictureWidthAndPlace)
{
    FirstCard().Picture = Folder.WritePicture("p.bmp", PictureOfPlaces({60, 160}));
    FirstCard().Resize = true;
    FirstCard().PictureLeft = 15 * 30;
    FirstCard().PictureTop = 15 * 4;
    Compose();
    EXPECT_EQ(Boxes().picFrame.Place(), QRect(35, 40, 60, 105));
    EXPECT_EQ(Boxes().picImage.Place().topLeft(), QPoint(0, 4));
    EXPECT_EQ(FrameSizeText(Boxes().picFrame), "60W * 105H");
}

TEST_F(StandardCardTest, TheRowsBelowFollowTheFrameAndTheBoldLine)
{
    FirstCard().FrameHeight = 60;
    Compose();
    EXPECT_EQ(Boxes().lblPicSize.Top, 100);
    EXPECT_EQ(Boxes().lblBold.Place(), QRect(5, 103, 139, 1));
    EXPECT_EQ(Boxes().lblInformation.Place(), QRect(5, 104, 139, 137));
    FirstCard().BoldText = "STRENGTH 3";
    PlaceCardPicture(Shop, 1);
    Compose();
    EXPECT_EQ(Boxes().lblInformation.Place(), QRect(5, 115, 139, 126));
    FirstCard().FrameHeight = 300;
    Compose();
    EXPECT_EQ(Boxes().lblInformation.Top, 355);
    EXPECT_EQ(Boxes().lblInformation.Height, 126) << "a height below 0 is passed over";

    FirstCard().FrameHeight = 105;
    FirstCard().BoldText.clear();
    FirstCard().Type.clear();
    FirstCard().ShowPicture = false;
    Compose();
    EXPECT_TRUE(InkIn({5, 41, 139, 100}).isEmpty()) << "without a picture neither field nor outline";
    EXPECT_FALSE(Boxes().picFrame.Visible);
    FirstCard().ShowPicture = true;
    Compose();
    EXPECT_EQ(Surface().GetPixel(70, 90), White);
}

TEST_F(StandardCardTest, AOneLineTypeTakesTheWholeLineOfThePreview)
{
    FirstCard().OneLine = true;
    FirstCard().Type = "I";
    FirstCard().SubType = "WWWW";
    Compose();
    EXPECT_EQ(Boxes().lblType[0].Caption, "IWWWW");
    EXPECT_EQ(Boxes().lblType[0].Width, 139);
    EXPECT_EQ(Boxes().lblType[0].Align, Alignment::Centre);
    for (const std::size_t other : {1U, 2U, 3U})
        EXPECT_FALSE(Boxes().lblType[other].Visible) << other;
    EXPECT_EQ(Boxes().lblNumber.Top, 16);

    FirstCard().OneLine = false;
    Compose();
    EXPECT_EQ(Boxes().lblType[0].Caption, "I");
    EXPECT_EQ(Boxes().lblType[0].Width, 57);
    EXPECT_EQ(Boxes().lblType[0].Align, Alignment::Left);
    for (const std::size_t other : {1U, 2U, 3U})
        EXPECT_TRUE(Boxes().lblType[other].Visible) << other;
    EXPECT_EQ(Boxes().lblNumber.Top, 8);
}

TEST_F(StandardCardTest, AFontWithoutSizeKeepsTheSizeOfTheTextBefore)
{
    FirstCard().ShowPicture = false;
    Header().FontInformation.Size = 0;
    Header().FontBold.Size = 12;
    FirstCard().BoldText = "M";
    FirstCard().Info = "MMM";
    Compose();
    EXPECT_GT(InkIn({0, 163, 152, 40}).height(), 9);
}

TEST_F(StandardCardTest, AMissingSymbolIsToldAndLeavesTheCardWithoutOne)
{
    Header().Symbol = Folder.WritePicture("s.bmp", PictureOf(PixelRows(7, "rrrrrrr")));
    (void)ShowSet(Shop);
    Compose();
    EXPECT_EQ(Surface().GetPixel(0, 250), Red);
    Header().Symbol = Folder.Path("none.bmp");
    ShowViewed(User, {.Symbol = ShowSet(Shop)});
    EXPECT_FALSE(Boxes().picSymbol.Visible);
    EXPECT_EQ(User.LastBox().Text, "Run-time error '53':\r\n\r\nFile not found");
    Compose();
    EXPECT_EQ(Surface().GetPixel(0, 250), Cream);
}

TEST_F(StandardCardTest, TheCreditLiesOverTheBackgroundOfTheCard)
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

TEST_F(StandardCardTest, MissingPicturesAreToldOnThePreviewAndTheRestIsComposed)
{
    FirstCard().Picture = Folder.Path("none.bmp");
    FirstCard().Background = Folder.Path("none/none.bmp");
    AddOwnBack(Shop.Set, "gone", Folder.Path("gone.bmp"));
    FirstCard().CardBack = 28;
    Compose();
    EXPECT_TRUE(User.Boxes.empty());
    ExpectPixels(Surface(), {{70, 90, White}, {2, 2, Cream}});
    EXPECT_TRUE(Boxes().picBack.Surface->GetPicture().IsEmpty());
    const QRect sixthRow = {0, 5, Boxes().picBack.Surface->Width(), 1};
    EXPECT_FALSE(deckforge::InkIn(*Boxes().picBack.Surface, sixthRow, White).isNull())
        << "the back says what is missing";
    EXPECT_EQ(RowsOf(Boxes().picCard.Surface->Image())[5].find('#'), std::string::npos)
        << "the message on the front goes with its colour";
    FirstCard().CardBack = 99;
    Compose();
    EXPECT_EQ(FirstCard().CardBack, 1) << "a back past the table becomes the first";
    EXPECT_EQ(Boxes().picBack.Surface->GetPicture().Pixels(), Shop.Art.imgCB(0).Pixels());
}

TEST_F(StandardCardTest, ADamagedPictureIsToldInABoxAndTheCardIsNotComposed)
{
    Compose();
    const QImage before = Surface().Image().Pixels();
    FirstCard().Picture = Folder.Write("p.bmp", "BM and no more");
    FirstCard().Color = Black;
    ShowComposed(User, ShowCard(Shop, 1));
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
    const QImage reference = composed(1).convertToFormat(QImage::Format_Grayscale8);
    const QImage reduced = composed(4)
                               .scaled(reference.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                               .convertToFormat(QImage::Format_Grayscale8);
    int differing = 0;
    for (int y = 0; y < reference.height(); ++y) {
        for (int x = 0; x < reference.width(); ++x)
            differing += qAbs(qGray(reference.pixel(x, y)) - qGray(reduced.pixel(x, y))) > 130 ? 1 : 0;
    }
    EXPECT_LT(differing, 60) << "a line that broke elsewhere differs in hundreds of pixels";
}

} // namespace deckforge
