#include "compose/StandardCard.h"
#include "compose/SetView.h"
#include "core/modInfo.h"
#include "support/Failures.h"
#include "support/PixelText.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <QPainter>

namespace deckforge {

namespace {

constexpr Colour Grey = 0xC0C0C0;
constexpr Colour Cream = 0xD0FFFF;

class StandardCardTest : public testing::Test {
protected:
    StandardCardTest() : Shop(User)
    {
        InitForm(Shop);
        Subject().Title.clear();
        Subject().Color = Cream;
    }

    Card& Subject() { return Shop.Set.Cards[1]; }
    CardTemplate& Boxes() { return Shop.Templates.Standard; }
    PictureBox& Surface() { return Shop.Surfaces.picACard; }

    QString PictureFile(const char* name, const Picture& picture)
    {
        const QString path = Folder.Path(QString::fromLatin1(name));
        SavePicture(picture, path);
        return path;
    }
    void Compose() { ASSERT_TRUE(ShowCard(Shop, 1)); }
    /// What of the area is not of the colour, as a rectangle.
    QRect InkIn(QRect area, Colour ground)
    {
        QRect ink;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (Surface().GetPixel(x, y) != ground)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }

    TestFolder Folder;
    ScriptedUser User;
    Workshop Shop;
};

} // namespace

TEST_F(StandardCardTest, ThePictureStartsInsideTheOutlineAndTheRestOfTheFrameIsWhite)
{
    Subject().Picture = PictureFile("p.bmp", PictureOfPlaces({60, 40}));
    Subject().PictureLeft = 15 * 10;
    Compose();
    EXPECT_EQ(Surface().GetPixel(4, 60), Cream);
    EXPECT_EQ(Surface().GetPixel(5, 60), Grey) << "the outline has the colour of the mark of the card before";
    EXPECT_EQ(Surface().GetPixel(6, 60), White);
    EXPECT_EQ(Surface().GetPixel(5 + 10 + 1, 40 + 1), ColourOfPlace(0, 0));
    EXPECT_EQ(Surface().GetPixel(5 + 10 + 1 + 59, 40 + 1 + 39), ColourOfPlace(59, 39));
    EXPECT_EQ(Surface().GetPixel(5 + 10 + 1 + 60, 41), White) << "where the picture ends the frame is white";
    EXPECT_EQ(Surface().GetPixel(5 + 138, 40 + 104), Grey);
    EXPECT_EQ(Surface().GetPixel(5 + 139, 60), Cream);
}

TEST_F(StandardCardTest, ANegativeOffsetCutsThePictureAndFillsOneColumnPastTheFrame)
{
    Subject().Picture = PictureFile("p.bmp", PictureOfPlaces({200, 160}));
    Subject().PictureLeft = -300;
    Subject().PictureTop = -15 * 7;
    Subject().Frame = false;
    Compose();
    EXPECT_EQ(Surface().GetPixel(5, 40), ColourOfPlace(20, 7));
    EXPECT_EQ(Surface().GetPixel(5 + 138, 40 + 104), ColourOfPlace(20 + 138, 7 + 104));
    Subject().Frame = true;
    Compose();
    EXPECT_EQ(Surface().GetPixel(6, 41), ColourOfPlace(20, 7));
    EXPECT_EQ(Surface().GetPixel(5 + 139, 41), ColourOfPlace(20 + 138, 7));
}

TEST_F(StandardCardTest, WithResizeTheFrameTakesThePictureWidthAndPlace)
{
    Subject().Picture = PictureFile("p.bmp", PictureOfPlaces({60, 160}));
    Subject().Resize = true;
    Subject().PictureLeft = 15 * 30;
    Subject().PictureTop = 15 * 4;
    Compose();
    EXPECT_EQ(Boxes().picFrame.Place(), QRect(35, 40, 60, 105));
    EXPECT_EQ(Boxes().picImage.Left, 0);
    EXPECT_EQ(Boxes().picImage.Top, 4);
    EXPECT_EQ(Surface().GetPixel(36, 45), ColourOfPlace(0, 0));
    EXPECT_EQ(Surface().GetPixel(35 + 58, 45), ColourOfPlace(57, 0)) << "two columns less than the frame";
    EXPECT_EQ(Surface().GetPixel(35 + 59, 45), Grey);
    EXPECT_EQ(FrameSizeText(Boxes().picFrame), QStringLiteral("60W * 105H"));
}

TEST_F(StandardCardTest, WithoutItsPictureTheCardHasNeitherFieldNorOutline)
{
    Subject().ShowPicture = false;
    Subject().Type.clear();
    Compose();
    EXPECT_TRUE(InkIn({5, 41, 139, 100}, Cream).isEmpty());
    EXPECT_FALSE(Boxes().picFrame.Visible);
    Subject().ShowPicture = true;
    Compose();
    EXPECT_EQ(Surface().GetPixel(70, 90), White);
}

TEST_F(StandardCardTest, TheRowsBelowFollowTheFrameAndTheBoldLine)
{
    Subject().FrameHeight = 60;
    Compose();
    EXPECT_EQ(Boxes().lblPicSize.Top, 100);
    EXPECT_EQ(Boxes().lblBold.Place(), QRect(5, 103, 139, 1));
    EXPECT_EQ(Boxes().lblInformation.Place(), QRect(5, 104, 139, 137));
    Subject().BoldText = QStringLiteral("STRENGTH 3");
    PlaceCardPicture(Shop, 1);
    Compose();
    EXPECT_EQ(Boxes().lblInformation.Place(), QRect(5, 115, 139, 126));
    Subject().FrameHeight = 300;
    Compose();
    EXPECT_EQ(Boxes().lblInformation.Top, 355);
    EXPECT_EQ(Boxes().lblInformation.Height, 126) << "a height below 0 is passed over";
}

TEST_F(StandardCardTest, AOneLineTypePrintsItsFirstPartWhereTheReversedOneWouldBeCentred)
{
    Subject().OneLine = true;
    Subject().Number.clear();
    Subject().Type = QStringLiteral("I");
    Subject().SubType = QStringLiteral("WWWW");
    Subject().TypeReversed = QStringLiteral("WWWWWWWWWW");
    Compose();
    EXPECT_EQ(Boxes().lblType[0].Caption, QStringLiteral("IWWWW"));
    EXPECT_EQ(Boxes().lblType[0].Width, 139);
    EXPECT_FALSE(Boxes().lblType[1].Visible);
    EXPECT_EQ(Boxes().lblNumber.Top, 16);
    const QRect ink = InkIn({0, 3, 152, 24}, Cream);
    const double half = Surface().TextWidth(Subject().TypeReversed);
    EXPECT_LT(half, 139);
    EXPECT_LE(ink.width(), 3);
    EXPECT_LT(ink.center().x(), 45);
    EXPECT_LT(ink.bottom(), 15);
}

TEST_F(StandardCardTest, FontsAndColoursOfTheSetReachTheirTexts)
{
    SetHeader& header = Shop.Set.Header;
    Subject().Type = QStringLiteral("-");
    Subject().TypeReversed = Subject().SubType = Subject().SubTypeReversed = QString();
    Subject().Number.clear();
    Subject().ShowPicture = false;
    header.FontInformation.Color = 0x0000FF;
    header.FontInformation.Size = 0; // cannot be: the size of the text before stays
    header.FontBold.Size = 12;
    Subject().BoldText = QStringLiteral("M");
    Subject().Info = QStringLiteral("MMM");
    Compose();
    const QRect bold = InkIn({0, 146, 152, 16}, Cream);
    EXPECT_GT(bold.height(), 9);
    const QRect info = InkIn({0, 163, 152, 40}, Cream);
    EXPECT_GT(info.height(), 9);
    EXPECT_EQ(Surface().GetPixel(info.left() + 1, info.center().y()) & 0xFF, 0xFF);
}

TEST_F(StandardCardTest, NumberSymbolAndMarkStandInTheBottomRow)
{
    Shop.Set.Header.Autonumber = true;
    Shop.Set.Header.Symbol = PictureFile(
        "s.bmp", PictureOf({"rrrrrrr", "rrrrrrr", "rrrrrrr", "rrrrrrr", "rrrrrrr", "rrrrrrr", "rrrrrrr"}));
    Subject().Info.clear();
    ShowSet(Shop);
    Compose();
    EXPECT_EQ(Boxes().picSymbol.Place(), QRect(0, 256 - 7 - 2, 7, 7)) << "a large symbol grows upward";
    EXPECT_EQ(Surface().GetPixel(0, 247), 0x0000FF);
    EXPECT_EQ(Surface().GetPixel(6, 253), 0x0000FF);
    EXPECT_FALSE(InkIn({136, 245, 16, 10}, Cream).isEmpty());
    const QRect mark = InkIn({50, 245, 50, 10}, Cream);
    EXPECT_NEAR(mark.center().x(), 75, 1);
    EXPECT_EQ(Boxes().lblWatermark.Caption, QStringLiteral("QDW 1.7"));

    Shop.Set.Header.Symbol = Folder.Path(QStringLiteral("none.bmp"));
    ShowSet(Shop);
    EXPECT_FALSE(Boxes().picSymbol.Visible);
    EXPECT_EQ(User.LastBox().Text, QStringLiteral("Run-time error '53':\r\n\r\nFile not found"));
    Compose();
    EXPECT_EQ(Surface().GetPixel(0, 250), Cream);
}

TEST_F(StandardCardTest, TheCreditLiesOnItsSideOverTheBackground)
{
    Subject().Artist = QStringLiteral("MMMM");
    Shop.Set.Header.ArtistColor = 0x000080;
    Compose();
    EXPECT_TRUE(Boxes().picArtistDest.Visible);
    const QRect plain = InkIn({0, 40, 5, 180}, Cream);
    EXPECT_EQ(plain.left(), 0);
    EXPECT_NEAR(plain.top(), 41, 2) << "it starts at the top and reads downward";
    EXPECT_GT(plain.height(), 18);

    Subject().Background = PictureFile("b.bmp", PictureOfPlaces({150, 254}));
    Compose();
    for (int y = 120; y < 220; ++y) {
        for (int x = 0; x < 5; ++x)
            ASSERT_EQ(Surface().GetPixel(x, y), ColourOfPlace(x, y)) << "the strip has the card's own pixels";
    }
    Subject().Artist.clear();
    Compose();
    EXPECT_FALSE(Boxes().picArtistDest.Visible);
    EXPECT_EQ(Surface().GetPixel(2, 45), ColourOfPlace(2, 45));
}

TEST_F(StandardCardTest, MissingPicturesAreToldOnThePreviewAndTheRestIsComposed)
{
    Subject().Picture = Folder.Path(QStringLiteral("none.bmp"));
    Subject().Background = Folder.Path(QStringLiteral("none/none.bmp"));
    Shop.Set.CardBacks.Resize(28);
    Shop.Set.CardBackCount = 28;
    Shop.Set.CardBacks[28].Picture = Folder.Path(QStringLiteral("gone.bmp"));
    Subject().CardBack = 28;
    Compose();
    EXPECT_TRUE(User.Boxes.empty());
    EXPECT_EQ(Surface().GetPixel(70, 90), White);
    EXPECT_EQ(Surface().GetPixel(2, 2), Cream);
    EXPECT_TRUE(Boxes().picBack.Surface->GetPicture().IsEmpty());
    EXPECT_NE(Boxes().picBack.Surface->Image().Pixels(),
              QImage(Boxes().picBack.Surface->Image().Pixels().size(), QImage::Format_RGB32));
    const auto rows = RowsOf(*Boxes().picBack.Surface);
    EXPECT_NE(rows[5].find_first_not_of('.'), std::string::npos) << "the back says what is missing";
    const auto front = RowsOf(Boxes().picCard.Surface->Image());
    EXPECT_EQ(front[5].find('#'), std::string::npos) << "the message on the front goes with its colour";
}

TEST_F(StandardCardTest, ADamagedPictureIsToldInABoxAndTheCardIsNotComposed)
{
    Compose();
    const QImage before = Surface().Image().Pixels();
    Subject().Picture = Folder.Write(QStringLiteral("p.bmp"), "BM and no more");
    Subject().Color = Black;
    EXPECT_FALSE(ShowCard(Shop, 1));
    EXPECT_EQ(User.BoxTexts(),
              std::vector<QString>{QStringLiteral("Cannot draw picture correct|Error while drawing "
                                                  "the card.\r\n\r\n481, Invalid picture")});
    EXPECT_EQ(Surface().Image().Pixels(), before);
}

TEST_F(StandardCardTest, ABackPastTheTableBecomesTheFirst)
{
    Subject().CardBack = 99;
    Compose();
    EXPECT_EQ(Subject().CardBack, 1);
    EXPECT_EQ(Boxes().picBack.Surface->GetPicture().Pixels(), Shop.Art.imgCB(0).Pixels());
}

TEST_F(StandardCardTest, ASetIsShownWhateverItsRecordsHold)
{
    Subject().Picture = PictureFile("p.bmp", PictureOfPlaces({60, 40}));
    Subject().PictureLeft = 1e300;
    Subject().PictureTop = -1e300;
    Subject().FrameHeight = -5;
    Subject().Resize = true;
    Shop.Set.Header.FontTitle = {.Name = {}, .Size = 10000};
    Compose();
    Subject().FrameHeight = 32767;
    Subject().CardBack = 0;
    Compose();
    EXPECT_TRUE(User.Boxes.empty());
    EXPECT_EQ(Surface().Size(), QSize(152, 256));
}

TEST(StandardCardAtScale, IsTheSameCardAndBreaksItsLinesAtTheSamePlaces)
{
    ScriptedUser user;
    const auto composed = [&](int scale) {
        Workshop shop(user, scale);
        InitForm(shop);
        shop.Set.Cards[1].Info =
            QStringLiteral("Roll one die for each follower. On a 1 or 2 it leaves you; on a 6 "
                           "you gain one strength and may move again in the next turn.");
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
