#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/NewBack.h"
#include "compose/StandardCard.h"
#include "files/SetFileFormat.h"
#include "support/EveryKind.h"
#include "support/WorkshopTest.h"

#include <QTransform>
#include <cmath>

namespace deckforge {

namespace {

enum class On { Standard, Large, Character, Piece, NewBack };
enum class At { Left, Right, Middle, MiddleOfTitle, MiddleUnrounded };

template <class Differs>
QRect Bounds(const QImage& image, Differs&& differs)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            bounds |= differs(x, y) ? QRect(x, y, 1, 1) : QRect();
    }
    return bounds;
}

QRect Changed(const QImage& before, const QImage& after)
{
    return Bounds(after, [&](int x, int y) { return before.pixel(x, y) != after.pixel(x, y); });
}

PictureBox SurfaceIn(const FontSpec& font, QSize size)
{
    PictureBox surface(size);
    surface.SetFontName(font.Name);
    surface.SetFontBold(font.Bold);
    surface.SetFontItalic(font.Italic);
    surface.SetFontSize(font.Size);
    surface.ForeColor = font.Color;
    return surface;
}

/// The ground with one line of text in its box.
QImage WithText(const QImage& ground, const FontSpec& font, At place, QRect box, const QString& text)
{
    PictureBox surface = SurfaceIn(font, ground.size());
    surface.SetPicture(Picture(ground));
    // The title of a standard card is centred by its width in the font of a new surface.
    const double width = place == At::MiddleOfTitle ? PictureBox().TextWidth(text) : surface.TextWidth(text);
    const double middle = box.width() / 2.0 - width / 2;
    surface.CurrentX = box.x() + (place == At::Left              ? 0
                                  : place == At::Right           ? box.width() - width
                                  : place == At::MiddleUnrounded ? middle
                                                                 : std::floor(middle));
    surface.CurrentY = box.y();
    surface.Print(text);
    return surface.Image().Pixels();
}

/// What a turned strip shows, from the text that is printed on it upright.
QImage TurnedStrip(PictureBox& strip, double x, double y, const QString& text, int degrees)
{
    strip.CurrentX = x;
    strip.CurrentY = y;
    strip.Print(text);
    return strip.Image().Pixels().transformed(QTransform().rotate(degrees));
}

} // namespace

class OneOfEachKindTest : public WorkshopTest {
protected:
    OneOfEachKindTest() { AddOneOfEachKind(Shop.Set); }
};

/// One element of each kind without texts and pictures, in thirteen fonts that all differ.
class GeometryTest : public OneOfEachKindTest {
protected:
    GeometryTest()
    {
        Clear(Standard);
        Large = {};
        Large.ShowPicture = true;
        Large.FrameHeight = 100;
        Large.Color = Cream;
        Hero = {};
        Hero.ShowPicture = true;
        Hero.FrameHeight = 100;
        Back.BackText.clear();
        int place = 0;
        for (FontSpec SetHeader::*font : setFile::Fonts) {
            Header().*font = SmallFont(5 + 0.2 * place, place % 2 == 1, 0x0A1020 * place);
            ++place;
        }
        Back.Font = SmallFont(16, true, Red);
        for (const On kind : {On::Standard, On::Large, On::Character, On::NewBack})
            Composed(kind); // the first outlines have the colour of a new surface
    }

    static void Clear(Card& card)
    {
        card = {};
        card.FrameHeight = 60;
        card.CardBack = 1;
        card.Color = Cream;
    }

    QImage Composed(On kind)
    {
        const CompositionFailure failure = kind == On::Standard  ? ShowCard(Shop, 1)
                                           : kind == On::Large   ? ShowLargeCard(Shop, 1)
                                           : kind != On::NewBack ? ShowCharacter(Shop, 1)
                                                                 : std::nullopt;
        EXPECT_FALSE(failure);
        if (kind == On::NewBack) {
            ShowNewCardBack(Shop, 1);
            DrawNewCardBack(Shop, 1);
        }
        const bool isOnSecond = kind == On::Piece || kind == On::NewBack;
        return (isOnSecond ? Shop.Surfaces.picACardPP : Surface()).Image().Pixels();
    }

    Card& Standard = Shop.Set.Cards[1];
    LargeCard& Large = Shop.Set.LargeCards[1];
    Character& Hero = Shop.Set.Characters[1];
    NewCardBack& Back = Shop.Set.NewCardBacks[1];
    CardTemplates& Boxes = Shop.Templates;
    const FontSpec MarkFont = SmallFont(5.25, false, LightGrey);
};

TEST_F(GeometryTest, EachTextHasItsPlaceAndFont)
{
    const SetHeader& header = Header();
    CharacterTemplate& hero = Boxes.Character;
    const struct {
        const char* Name;
        On Kind;
        QString& Text;
        const FontSpec& Font;
        At Place;
        QRect Box; ///< of the surface; the panel of a character card lies at 13, 13
        const char* Fixed = "";
    } rows[] = {
        {"title", On::Standard, Standard.Title, header.FontTitle, At::MiddleOfTitle, {5, 28, 139, 13}},
        {"type", On::Standard, Standard.Type, header.FontType, At::Left, {5, 3, 57, 12}},
        {"reversed", On::Standard, Standard.TypeReversed, header.FontType, At::Right, {88, 3, 56, 12}},
        {"second part", On::Standard, Standard.SubType, header.FontType, At::Left, {5, 15, 57, 12}},
        {"its reverse", On::Standard, Standard.SubTypeReversed, header.FontType, At::Right, {88, 15, 57, 12}},
        {"number", On::Standard, Standard.Number, header.FontNumber, At::Middle, {66, 8, 17, 17}},
        {"bold", On::Standard, Standard.BoldText, header.FontBold, At::Middle, {5, 103, 139, 12}},
        {"info", On::Standard, Standard.Info, header.FontInformation, At::Left, {5, 104, 139, 137}},
        {"mark",
         On::Standard,
         Boxes.Standard.lblWatermark.Caption,
         MarkFont,
         At::Middle,
         {55, 245, 40, 9},
         "QDW 1.7"},
        {"large title",
         On::Large,
         Large.Title,
         header.FontTitleLarge,
         At::MiddleUnrounded,
         {113, 8, 183, 25}},
        {"large info", On::Large, Large.Info, header.FontInformationLarge, At::Left, {113, 32, 183, 212}},
        {"large mark",
         On::Large,
         Boxes.Large.lblWatermark.Caption,
         MarkFont,
         At::Middle,
         {132, 246, 40, 9},
         "QDW 1.7"},
        {"name", On::Character, Hero.Name, header.FontCharacter, At::Middle, {80, 0, 140, 13}},
        {"objects",
         On::Character,
         hero.lblObjects.Caption,
         header.FontCharacter,
         At::Middle,
         {46, 242, 71, 12},
         "OBJECTS"},
        {"followers",
         On::Character,
         hero.lblFollowers.Caption,
         header.FontCharacter,
         At::Middle,
         {185, 242, 71, 12},
         "FOLLOWERS"},
        {"alignment", On::Character, Hero.Alignment, header.FontAlignment, At::Left, {185, 16, 87, 12}},
        {"its title",
         On::Character,
         hero.lblAlignmentTitle.Caption,
         header.FontAlignment,
         At::Left,
         {120, 16, 65, 12},
         "ALIGNMENT:"},
        {"start", On::Character, Hero.StartArea, header.FontAlignment, At::Left, {161, 28, 111, 12}},
        {"its title",
         On::Character,
         hero.lblStartTitle.Caption,
         header.FontAlignment,
         At::Left,
         {120, 28, 41, 12},
         "START:"},
        {"special", On::Character, Hero.SpecialAbilities, header.FontSpecial, At::Left, {120, 56, 165, 177}},
        {"its title",
         On::Character,
         hero.lblSpecialTitle.Caption,
         header.FontSpecialTitle,
         At::Middle,
         {120, 41, 165, 11},
         "SPECIAL ABILITIES"},
        {"character mark",
         On::Character,
         hero.lblWatermark.Caption,
         MarkFont,
         At::Middle,
         {126, 233, 40, 9},
         "QDW 1.7"},
        {"piece name", On::Piece, Hero.Name, MarkFont, At::Middle, {8, 10, 132, 13}},
        {"piece mark",
         On::Piece,
         Boxes.PlayingPiece.lblWatermark.Caption,
         MarkFont,
         At::Middle,
         {0, 246, 152, 9},
         "QDW 1.7"},
        {"back mark",
         On::NewBack,
         Boxes.NewBack.lblWatermark.Caption,
         MarkFont,
         At::Middle,
         {0, 142, 255, 9},
         "QDW 1.7"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Name);
        EXPECT_EQ(row.Text, row.Fixed);
        row.Text.clear();
        const QImage without = Composed(row.Kind);
        for (const char* text : {"Egx", "Eg", "xi"}) { // of several widths, for what is rounded
            row.Text = text;
            const QImage with = Composed(row.Kind);
            const QImage expected = WithText(without, row.Font, row.Place, row.Box, row.Text);
            EXPECT_EQ(Changed(without, with), Changed(without, expected)) << text;
            EXPECT_TRUE(Changed(with, expected).isNull()) << text << " in another font or colour";
        }
        row.Text = row.Fixed;
    }
}

TEST_F(GeometryTest, RunningNumbersStandAtTheBottomWithABlankBefore)
{
    const struct {
        On Kind;
        double Left;
        int Top;
    } rows[] = {{On::Standard, 134 + 13 - SurfaceIn(Header().FontAutonumber, {}).TextWidth(u"1"), 245},
                {On::Large, 0, 245}, // at the height of the standard card's
                {On::Character, 13 + 2, 13 + 220}};
    for (const auto& row : rows) {
        Header().Autonumber = false;
        const QImage without = Composed(row.Kind);
        Header().Autonumber = true;
        PictureBox expected = SurfaceIn(Header().FontAutonumber, without.size());
        expected.SetPicture(Picture(without));
        expected.CurrentX = row.Left;
        expected.CurrentY = row.Top;
        expected.Print(" 1 ");
        EXPECT_EQ(Changed(without, Composed(row.Kind)), Changed(without, expected.Image().Pixels()))
            << static_cast<int>(row.Kind);
    }
}

TEST_F(GeometryTest, TheTextsOfAStandardCardFollowTheirSwitches)
{
    // Without a bold line the information begins a pixel under it, with one twelve.
    Standard.FrameHeight = 105;
    const auto topOfInfo = [&] {
        Standard.Info.clear();
        const QImage without = Composed(On::Standard);
        Standard.Info = "E";
        return Changed(without, Composed(On::Standard)).top();
    };
    const int top = topOfInfo();
    Standard.BoldText = "E";
    EXPECT_EQ(topOfInfo() - top, 11);

    // On one line: the first part alone, where the reversed one would be centred, and the number below.
    Clear(Standard);
    Standard.OneLine = true;
    Standard.TypeReversed = "Reversed type";
    Standard.SubType = Standard.SubTypeReversed = "none of these";
    const QImage without = Composed(On::Standard);
    Standard.Type = "I";
    Standard.Number = "7";
    const double width = SurfaceIn(Header().FontType, {}).TextWidth(Standard.TypeReversed);
    const int left = static_cast<int>(std::floor(139 / 2.0 - width / 2)) + 5;
    QImage expected = WithText(without, Header().FontType, At::Left, {left, 3, 139, 12}, "I");
    expected = WithText(expected, Header().FontNumber, At::Middle, {66, 16, 17, 17}, "7");
    EXPECT_EQ(Changed(without, Composed(On::Standard)), Changed(without, expected));
}

TEST_F(GeometryTest, TheTextOfABackIsCentredOnItsMiddle)
{
    Back.InnerColor = Back.FrameColor = Back.BackColor = White;
    const QImage without = Composed(On::NewBack);
    for (const auto& [text, lines] : {std::pair{"Egx", 1}, {"Egx\r\n\r\nEgx", 3}}) {
        Back.BackText = text;
        const double pitch = SurfaceIn(Back.Font, {}).TextHeight(u"E");
        const int top = static_cast<int>(std::nearbyint(76 - lines * pitch / 2));
        QImage expected = without;
        for (const int line : {0, lines - 1}) {
            const QRect box(0, top + static_cast<int>(pitch) * line, 256, 1);
            if (line == 0 || lines > 1)
                expected = WithText(expected, Back.Font, At::Middle, box, "Egx");
        }
        EXPECT_EQ(Changed(without, Composed(On::NewBack)), Changed(without, expected)) << text;
    }
}

TEST_F(GeometryTest, EachAttributeReadsInItsOwnStripInItsColour)
{
    const struct {
        QString& Value;
        const char* Text;
        Colour Ink;
        QRect Strip;
        int Degrees;
    } rows[] = {{Hero.Strength, "STRENGTH 4", 0x101FFF, {0, 44, 12, 52}, 90},
                {Hero.Craft, "CRAFT+2", 0xF0BF00, {0, 159, 12, 52}, 90},
                {Hero.Gold, "GOLD", 0x0FB0FF, {290, 44, 12, 52}, -90},
                {Hero.Lives, "LIVES 1", 0x00B700, {290, 159, 12, 52}, -90}};
    Hero.Strength = "4";
    Hero.Craft = "+2";
    Hero.Gold = "---";
    Hero.Lives = "1";
    const QImage card = Composed(On::Character);
    for (const auto& row : rows) {
        PictureBox strip = SurfaceIn(SmallFont(6, false, row.Ink), {52, 12});
        strip.SetBackColor(Black);
        const QString text = row.Text;
        const QImage expected = TurnedStrip(strip, 26 - strip.TextWidth(text) / 2,
                                            6 - strip.TextHeight(text) / 2, text, row.Degrees);
        EXPECT_TRUE(Changed(expected, card.copy(row.Strip)).isNull()) << row.Text;

        const QString value = std::exchange(row.Value, "9");
        EXPECT_TRUE(row.Strip.contains(Changed(card, Composed(On::Character)))) << row.Text;
        row.Value = value;
    }
}

TEST_F(GeometryTest, TheCreditOfTheArtistRunsDownTheLeftEdge)
{
    const QImage without = Composed(On::Standard);
    Standard.Artist = "Egx Mmm";
    Header().ArtistColor = 0x800000;
    const QImage with = Composed(On::Standard);
    PictureBox strip = SurfaceIn(SmallFont(5.25, false, Header().ArtistColor), {180, 5});
    strip.SetBackColor(Cream);
    const QImage expected = TurnedStrip(strip, 0, -2, Standard.Artist, 90);
    EXPECT_TRUE(Changed(expected, with.copy(0, 40, 5, 180)).isNull());
    EXPECT_TRUE(QRect(0, 40, 5, 180).contains(Changed(without, with)));
}

TEST_F(GeometryTest, SymbolsStandInTheirCorners)
{
    const std::pair<On, QRect> rows[] = {{On::Standard, {0, 256 - 2 - 11, 7, 11}},
                                         {On::Large, {304 - 2 - 7, 256 - 2 - 11, 7, 11}},
                                         {On::Character, {13 + 276 - 2 - 7, 13 + 228 - 2 - 11, 7, 11}}};
    const QString symbol = Folder.WritePicture("s.bmp", PictureOf(PixelRows(11, "rrrrrrr")));
    for (const auto& [kind, place] : rows) {
        Header().Symbol.clear();
        (void)ShowSet(Shop);
        const QImage without = Composed(kind);
        Header().Symbol = symbol;
        (void)ShowSet(Shop);
        EXPECT_EQ(Changed(without, Composed(kind)), place) << static_cast<int>(kind);
    }
}

TEST_F(GeometryTest, FieldAndOutlineOfThePictureFillTheFrame)
{
    Hero.Background = Folder.WritePicture("ground.bmp", PictureOfPlaces({276, 228}));
    const struct {
        On Kind;
        bool& Shown;
        bool& Outlined;
        QRect Plain;
        QRect WithOutline;
    } rows[] = {
        {On::Standard, Standard.ShowPicture, Standard.Frame, {5, 40, 139, 60}, {5, 40, 139, 60}},
        {On::Large, Large.ShowPicture, Large.Frame, {8, 8, 100, 238}, {8, 8, 100, 238}},
        {On::Character, Hero.ShowPicture, Hero.Frame, {14, 14, 100, 220}, {14, 14, 100, 218}},
    };
    // What moves with the frame has no part in it.
    for (Box* caption : {&Boxes.Character.lblAlignmentTitle, &Boxes.Character.lblStartTitle,
                         &Boxes.Character.lblSpecialTitle})
        caption->Caption.clear();
    for (const auto& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.Kind));
        row.Shown = false;
        row.Outlined = true;
        const QImage without = Composed(row.Kind);
        row.Shown = true;
        const QImage outlined = Composed(row.Kind);
        row.Outlined = false;
        const QImage plain = Composed(row.Kind);
        EXPECT_EQ(Changed(without, plain), row.Plain);
        EXPECT_EQ(Changed(without, outlined), row.WithOutline);
        const QRect inside = row.WithOutline.adjusted(1, 1, -1, -1);
        const auto isInk = [&](int x, int y) { return outlined.pixel(x, y) != qRgb(255, 255, 255); };
        EXPECT_TRUE(
            Bounds(outlined, [&](int x, int y) { return inside.contains(x, y) && isInk(x, y); }).isNull());
        const auto isGap = [&](int x, int y) {
            return row.WithOutline.contains(x, y) && !inside.contains(x, y) && !isInk(x, y);
        };
        EXPECT_TRUE(Bounds(outlined, isGap).isNull());
    }
}

TEST_F(GeometryTest, APictureLiesInItsFrameAndIsCutByIt)
{
    struct Placed {
        On Kind;
        QString& Path;
        double& Left;
        double& Top;
        bool* Outlined;
        QRect Frame;
    };
    const Placed rows[] = {
        {On::Standard,
         Standard.Picture,
         Standard.PictureLeft,
         Standard.PictureTop,
         &Standard.Frame,
         {5, 40, 139, 60}},
        {On::Large, Large.Picture, Large.PictureLeft, Large.PictureTop, &Large.Frame, {8, 8, 100, 238}},
        {On::Character, Hero.Picture, Hero.PictureLeft, Hero.PictureTop, nullptr, {14, 14, 100, 220}},
        {On::Character, Hero.Picture, Hero.PictureLeft, Hero.PictureTop, &Hero.Frame, {14, 14, 100, 218}},
        {On::Piece,
         Hero.PlayingPiece,
         Hero.PlayingPieceLeft,
         Hero.PlayingPieceTop,
         nullptr,
         {9, 24, 132, 222}},
    };
    const QString small = Folder.WritePicture("small.bmp", PictureOfPlaces({30, 20}));
    const QString big = Folder.WritePicture("big.bmp", PictureOfPlaces({200, 250}));
    Standard.ShowPicture = true;
    for (const Placed& row : rows) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(row.Kind) << (row.Outlined != nullptr));
        if (row.Outlined != nullptr)
            *row.Outlined = true;
        const int inset = row.Outlined != nullptr ? 1 : 0;
        const QPoint corner = row.Frame.topLeft() + QPoint(inset, inset);
        row.Path.clear();
        Composed(row.Kind); // for the outline in the colour that the kind itself leaves
        const QImage empty = Composed(row.Kind);
        const auto shown = [&](const QString& path, int right, int down) {
            row.Path = path;
            row.Left = 15 * right;
            row.Top = 15 * down;
            const QImage card = Composed(row.Kind);
            return std::pair{card, Changed(empty, card)};
        };
        const auto [whole, placeOfWhole] = shown(small, 10, 7);
        EXPECT_EQ(placeOfWhole, QRect(corner + QPoint(10, 7), QSize(30, 20)));
        EXPECT_EQ(FromRgb(whole.pixel(placeOfWhole.topLeft())), ColourOfPlace(0, 0));

        // Cut at the left and the top it is as large as the frame, past whose outline it then reaches.
        const auto [cut, placeOfCut] = shown(big, -20, -5);
        EXPECT_EQ(placeOfCut, QRect(corner, row.Frame.size().boundedTo({180, 245})));
        EXPECT_EQ(FromRgb(cut.pixel(placeOfCut.topLeft())), ColourOfPlace(20, 5));

        // Cut at the right and the bottom it ends inside the outline.
        const auto [low, placeOfLow] = shown(small, row.Frame.width() - 12, row.Frame.height() - 9);
        EXPECT_EQ(placeOfLow.size(), QSize(12 - 2 * inset, 9 - 2 * inset));
        EXPECT_EQ(FromRgb(low.pixel(placeOfLow.topLeft())), ColourOfPlace(0, 0));

        EXPECT_TRUE(shown(small, -30, 0).second.isNull()) << "gone at the left";
        EXPECT_TRUE(shown(small, 0, row.Frame.height() - inset).second.isNull()) << "gone at the bottom";
    }
}

TEST_F(GeometryTest, AFrameThatFollowsThePictureMovesInItsStead)
{
    Standard.ShowPicture = Standard.Resize = Standard.Frame = true;
    Large.Resize = Large.Frame = true;
    Standard.Picture = Large.Picture = Folder.WritePicture("p.bmp", PictureOfPlaces({40, 50}));
    Standard.PictureLeft = Large.PictureLeft = 15 * 6;
    Standard.PictureTop = Large.PictureTop = 15 * 4;
    const std::tuple<On, bool&, QRect, QPoint> rows[] = {
        // The standard card's frame is as wide as the picture, the large card's as high.
        {On::Standard, Standard.ShowPicture, {5 + 6, 40, 40, 60}, {1, 4 + 1}},
        {On::Large, Large.ShowPicture, {8, 8 + 4, 100, 50}, {6 + 1, 1}}};
    for (const auto& [kind, isShown, frame, offset] : rows) {
        const QImage with = Composed(kind);
        isShown = false;
        EXPECT_EQ(Changed(Composed(kind), with), frame);
        EXPECT_EQ(FromRgb(with.pixel(frame.topLeft() + offset)), ColourOfPlace(0, 0));
    }
}

} // namespace deckforge
