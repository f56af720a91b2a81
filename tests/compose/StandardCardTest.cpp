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
    void Compose() { ASSERT_TRUE(ShowCard(Shop, 1)); }
    QRect InkIn(QRect area) { return deckforge::InkIn(Surface(), area, Cream); }
};

TEST_F(StandardCardTest, ThePictureStartsInsideTheOutlineAndTheRestOfTheFrameIsWhite)
{
    FirstCard().Picture = Folder.WritePicture("p.bmp", PictureOfPlaces({60, 40}));
    FirstCard().PictureLeft = 15 * 10;
    Compose();
    ExpectPixels(Surface(), {{4, 60, Cream},
                             {5, 60, LightGrey}, // the colour of the mark of the card before
                             {6, 60, White},
                             {5 + 10 + 1, 40 + 1, ColourOfPlace(0, 0)},
                             {5 + 10 + 1 + 59, 40 + 1 + 39, ColourOfPlace(59, 39)},
                             {5 + 10 + 1 + 60, 41, White}, // where the picture ends
                             {5 + 138, 40 + 104, LightGrey},
                             {5 + 139, 60, Cream}});
}

TEST_F(StandardCardTest, ANegativeOffsetCutsThePictureAndFillsOneColumnPastTheFrame)
{
    FirstCard().Picture = Folder.WritePicture("p.bmp", PictureOfPlaces({200, 160}));
    FirstCard().PictureLeft = -300;
    FirstCard().PictureTop = -15 * 7;
    FirstCard().Frame = false;
    Compose();
    ExpectPixels(Surface(),
                 {{5, 40, ColourOfPlace(20, 7)}, {5 + 138, 40 + 104, ColourOfPlace(20 + 138, 7 + 104)}});
    FirstCard().Frame = true;
    Compose();
    ExpectPixels(Surface(), {{6, 41, ColourOfPlace(20, 7)}, {5 + 139, 41, ColourOfPlace(20 + 138, 7)}});
}

TEST_F(StandardCardTest, WithResizeTheFrameTakesThePictureWidthAndPlace)
{
    FirstCard().Picture = Folder.WritePicture("p.bmp", PictureOfPlaces({60, 160}));
    FirstCard().Resize = true;
    FirstCard().PictureLeft = 15 * 30;
    FirstCard().PictureTop = 15 * 4;
    Compose();
    EXPECT_EQ(Boxes().picFrame.Place(), QRect(35, 40, 60, 105));
    EXPECT_EQ(Boxes().picImage.Place().topLeft(), QPoint(0, 4));
    ExpectPixels(Surface(), {{36, 45, ColourOfPlace(0, 0)},
                             {35 + 58, 45, ColourOfPlace(57, 0)}, // two columns less than the frame
                             {35 + 59, 45, LightGrey}});
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

TEST_F(StandardCardTest, AOneLineTypePrintsItsFirstPartWhereTheReversedOneWouldBeCentred)
{
    FirstCard().OneLine = true;
    FirstCard().Number.clear();
    FirstCard().Type = "I";
    FirstCard().SubType = "WWWW";
    FirstCard().TypeReversed = "WWWWWWWWWW";
    Compose();
    EXPECT_EQ(Boxes().lblType[0].Caption, "IWWWW");
    EXPECT_EQ(Boxes().lblType[0].Width, 139);
    EXPECT_FALSE(Boxes().lblType[1].Visible);
    EXPECT_EQ(Boxes().lblNumber.Top, 16);
    EXPECT_LT(Surface().TextWidth(FirstCard().TypeReversed), 139);
    const QRect ink = InkIn({0, 3, 152, 24});
    EXPECT_LE(ink.width(), 3);
    EXPECT_LT(ink.center().x(), 45);
    EXPECT_LT(ink.bottom(), 15);
}

TEST_F(StandardCardTest, FontsAndColoursOfTheSetReachTheirTexts)
{
    FirstCard().Type = "-";
    FirstCard().TypeReversed = FirstCard().SubType = FirstCard().SubTypeReversed = QString();
    FirstCard().Number.clear();
    FirstCard().ShowPicture = false;
    Header().FontInformation.Color = Red;
    Header().FontInformation.Size = 0; // cannot be: the size of the text before stays
    Header().FontBold.Size = 12;
    FirstCard().BoldText = "M";
    FirstCard().Info = "MMM";
    Compose();
    EXPECT_GT(InkIn({0, 146, 152, 16}).height(), 9);
    const QRect info = InkIn({0, 163, 152, 40});
    EXPECT_GT(info.height(), 9);
    EXPECT_EQ(Surface().GetPixel(info.left() + 1, info.center().y()) & 0xFF, 0xFF);
}

TEST_F(StandardCardTest, NumberSymbolAndMarkStandInTheBottomRow)
{
    Header().Autonumber = true;
    Header().Symbol = Folder.WritePicture("s.bmp", PictureOf(PixelRows(7, "rrrrrrr")));
    FirstCard().Info.clear();
    ShowSet(Shop);
    Compose();
    EXPECT_EQ(Boxes().picSymbol.Place(), QRect(0, 256 - 7 - 2, 7, 7)) << "a large symbol grows upward";
    ExpectPixels(Surface(), {{0, 247, Red}, {6, 253, Red}});
    EXPECT_FALSE(InkIn({136, 245, 16, 10}).isEmpty());
    EXPECT_NEAR(InkIn({50, 245, 50, 10}).center().x(), 75, 1);
    EXPECT_EQ(Boxes().lblWatermark.Caption, "QDW 1.7");

    Header().Symbol = Folder.Path("none.bmp");
    ShowSet(Shop);
    EXPECT_FALSE(Boxes().picSymbol.Visible);
    EXPECT_EQ(User.LastBox().Text, "Run-time error '53':\r\n\r\nFile not found");
    Compose();
    EXPECT_EQ(Surface().GetPixel(0, 250), Cream);
}

TEST_F(StandardCardTest, TheCreditLiesOnItsSideOverTheBackground)
{
    FirstCard().Artist = "MMMM";
    Header().ArtistColor = 0x000080;
    Compose();
    EXPECT_TRUE(Boxes().picArtistDest.Visible);
    const QRect plain = InkIn({0, 40, 5, 180});
    EXPECT_EQ(plain.left(), 0);
    EXPECT_NEAR(plain.top(), 41, 2) << "it starts at the top and reads downward";
    EXPECT_GT(plain.height(), 18);

    FirstCard().Background = Folder.WritePicture("b.bmp", PictureOfPlaces({150, 254}));
    Compose();
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
    EXPECT_FALSE(ShowCard(Shop, 1));
    EXPECT_EQ(User.BoxTexts(), QStringList("Cannot draw picture correct|Error while drawing the card.\r\n\r\n"
                                           "481, Invalid picture"));
    EXPECT_EQ(Surface().Image().Pixels(), before);
}

TEST(StandardCardAtScale, IsTheSameCardAndBreaksItsLinesAtTheSamePlaces)
{
    ScriptedUser user;
    const auto composed = [&](int scale) {
        Workshop shop(user, scale);
        InitForm(shop);
        shop.Set.Cards[1].Info = "Roll one die for each follower. On a 1 or 2 it leaves you; on a 6 "
                                 "you gain one strength and may move again in the next turn.";
        EXPECT_TRUE(ShowCard(shop, 1));
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
