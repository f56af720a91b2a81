// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/GeometryTest.h"

#include <QTransform>
#include <cmath>

namespace deckforge {

namespace {

enum At { Left, Right, Middle, MiddleOfTitle, MiddleUnrounded };

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

/// The background with one line of text in its box.
QImage WithText(const QImage& ground, const FontSpec& font, At place, QRect box, const QString& text)
{
    PictureBox surface = SurfaceIn(font, ground.size());
    surface.SetPicture(Picture(ground));
    // The title of a standard card is centred by its width in the default font of a new surface.
    const double width = place == MiddleOfTitle ? PictureBox().TextWidth(text) : surface.TextWidth(text);
    const double room = box.width() - width;
    const double middle = place == MiddleUnrounded ? room / 2 : std::floor(room / 2);
    surface.CurrentX = box.x() + (place == Left ? 0 : place == Right ? room : middle);
    surface.CurrentY = box.y();
    surface.Print(text);
    return surface.Image().Pixels();
}

/// The expected strip: the text printed upright, then rotated.
QImage TurnedStrip(PictureBox& strip, double x, double y, const QString& text, int degrees)
{
    strip.CurrentX = x;
    strip.CurrentY = y;
    strip.Print(text);
    return strip.Image().Pixels().transformed(QTransform().rotate(degrees));
}

} // namespace

TEST_F(GeometryTest, EachTextHasItsPlaceAndFont)
{
    const SetHeader& set = Header();
    CharacterTemplate& hero = Boxes.Character;
    const struct {
        QString Name; ///< a name in capitals is a fixed text
        On Kind;
        QString& Text;
        const FontSpec& Font;
        At Place;
        QRect Box; ///< on the surface; the panel of a character card is at (13, 13)
    } rows[] = {
        {"title", OnCard, Standard.Title, set.FontTitle, MiddleOfTitle, {5, 28, 139, 13}},
        {"type", OnCard, Standard.Type, set.FontType, Left, {5, 3, 57, 12}},
        {"reversed", OnCard, Standard.TypeReversed, set.FontType, Right, {88, 3, 56, 12}},
        {"second part", OnCard, Standard.SubType, set.FontType, Left, {5, 15, 57, 12}},
        {"its reverse", OnCard, Standard.SubTypeReversed, set.FontType, Right, {88, 15, 57, 12}},
        {"number", OnCard, Standard.Number, set.FontNumber, Middle, {66, 8, 17, 17}},
        {"bold", OnCard, Standard.BoldText, set.FontBold, Middle, {5, 103, 139, 12}},
        {"info", OnCard, Standard.Info, set.FontInformation, Left, {5, 104, 139, 137}},
        {"QDW 1.7", OnCard, Boxes.Standard.lblWatermark.Caption, MarkFont, Middle, {55, 245, 40, 9}},
        {"large title", OnLarge, Large.Title, set.FontTitleLarge, MiddleUnrounded, {113, 8, 183, 25}},
        {"large info", OnLarge, Large.Info, set.FontInformationLarge, Left, {113, 32, 183, 212}},
        {"QDW 1.7", OnLarge, Boxes.Large.lblWatermark.Caption, MarkFont, Middle, {132, 246, 40, 9}},
        {"name", OnHero, Hero.Name, set.FontCharacter, Middle, {80, 0, 140, 13}},
        {"OBJECTS", OnHero, hero.lblObjects.Caption, set.FontCharacter, Middle, {46, 242, 71, 12}},
        {"FOLLOWERS", OnHero, hero.lblFollowers.Caption, set.FontCharacter, Middle, {185, 242, 71, 12}},
        {"alignment", OnHero, Hero.Alignment, set.FontAlignment, Left, {185, 16, 87, 12}},
        {"ALIGNMENT:", OnHero, hero.lblAlignmentTitle.Caption, set.FontAlignment, Left, {120, 16, 65, 12}},
        {"start", OnHero, Hero.StartArea, set.FontAlignment, Left, {161, 28, 111, 12}},
        {"START:", OnHero, hero.lblStartTitle.Caption, set.FontAlignment, Left, {120, 28, 41, 12}},
        {"special", OnHero, Hero.SpecialAbilities, set.FontSpecial, Left, {120, 56, 165, 177}},
        {"SPECIAL ABILITIES",
         OnHero,
         hero.lblSpecialTitle.Caption,
         set.FontSpecialTitle,
         Middle,
         {120, 41, 165, 11}},
        {"QDW 1.7", OnHero, hero.lblWatermark.Caption, MarkFont, Middle, {126, 233, 40, 9}},
        {"piece name", OnPiece, Hero.Name, MarkFont, Middle, {8, 10, 132, 13}},
        {"QDW 1.7", OnPiece, Boxes.PlayingPiece.lblWatermark.Caption, MarkFont, Middle, {0, 246, 152, 9}},
        {"QDW 1.7", OnBack, Boxes.NewBack.lblWatermark.Caption, MarkFont, Middle, {0, 142, 255, 9}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.Name.toStdString() << " of kind " << row.Kind);
        const QString fixed = row.Name.isUpper() ? row.Name : "";
        EXPECT_EQ(row.Text, fixed);
        row.Text.clear();
        const QImage without = Composed(row.Kind);
        for (const char* text : {"Egx", "Eg", "xi"}) { // different widths, to test rounding
            row.Text = text;
            const QImage with = Composed(row.Kind);
            const QImage expected = WithText(without, row.Font, row.Place, row.Box, row.Text);
            EXPECT_EQ(Changed(without, with), Changed(without, expected)) << text;
            EXPECT_TRUE(Changed(with, expected).isNull()) << text << " in another font or colour";
        }
        row.Text = fixed;
    }
}

TEST_F(GeometryTest, NumbersArePrintedAtTheBottomAfterASpace)
{
    const double leftOnCard = 134 + 13 - SurfaceIn(Header().FontAutonumber, {}).TextWidth(u"1");
    const std::tuple<On, double, int> rows[] = {
        {OnCard, leftOnCard, 245}, {OnLarge, 0, 245}, {OnHero, 13 + 2, 13 + 220}};
    for (const auto& [kind, left, top] : rows) {
        Header().Autonumber = false;
        const QImage without = Composed(kind);
        Header().Autonumber = true;
        PictureBox expected = SurfaceIn(Header().FontAutonumber, without.size());
        expected.SetPicture(Picture(without));
        expected.CurrentX = left;
        expected.CurrentY = top;
        expected.Print(" 1 ");
        EXPECT_EQ(Changed(without, Composed(kind)), Changed(without, expected.Image().Pixels())) << kind;
    }
}

TEST_F(GeometryTest, TheTextsOfAStandardCardFollowItsOptions)
{
    // Without a bold line the information begins a pixel under it, with one twelve.
    Standard.FrameHeight = 105;
    const auto topOfInfo = [&] {
        Standard.Info.clear();
        const QImage without = Composed(OnCard);
        Standard.Info = "E";
        return Changed(without, Composed(OnCard)).top();
    };
    const int top = topOfInfo();
    Standard.BoldText = "E";
    EXPECT_EQ(topOfInfo() - top, 11);

    // With OneLine, the first part is where the reversed type would be centred, with the number below.
    Clear(Standard);
    Standard.OneLine = true;
    Standard.TypeReversed = "Reversed type";
    Standard.SubType = Standard.SubTypeReversed = "none of these";
    const QImage without = Composed(OnCard);
    Standard.Type = "I";
    Standard.Number = "7";
    const double width = SurfaceIn(Header().FontType, {}).TextWidth(Standard.TypeReversed);
    const int left = static_cast<int>(std::floor(139 / 2.0 - width / 2)) + 5;
    QImage expected = WithText(without, Header().FontType, Left, {left, 3, 139, 12}, "I");
    expected = WithText(expected, Header().FontNumber, Middle, {66, 16, 17, 17}, "7");
    EXPECT_EQ(Changed(without, Composed(OnCard)), Changed(without, expected));
}

TEST_F(GeometryTest, TheTextOfABackIsCentredAndBreaksAtBarsIfItHasLines)
{
    Back.InnerColor = Back.FrameColor = Back.BackColor = White;
    const QImage without = Composed(OnBack);
    const std::pair<const char*, QStringList> rows[] = {{"Egx", {"Egx"}},
                                                        {"Egx\r\n\r\nEg", {"Egx", "", "Eg"}},
                                                        {"E|gx", {"E|gx"}},
                                                        {"E|gx\r\nEg", {"E", "gx", "Eg"}}};
    for (const auto& [text, lines] : rows) {
        Back.BackText = text;
        const int pitch = static_cast<int>(SurfaceIn(Back.Font, {}).TextHeight(u"E"));
        // Bars do not add to the height.
        int y = static_cast<int>(
            std::nearbyint(76 - static_cast<double>(QString(text).count('\n') + 1) * pitch / 2));
        QImage expected = without;
        for (const QString& line : lines) {
            expected = WithText(expected, Back.Font, Middle, {0, y, 256, 1}, line);
            y += pitch;
        }
        EXPECT_EQ(Changed(without, Composed(OnBack)), Changed(without, expected)) << text;
    }
}

TEST_F(GeometryTest, EachAttributeIsDrawnInItsStripAndColour)
{
    const std::tuple<QString&, QString, Colour, QRect, int> rows[] = {
        {Hero.Strength, "STRENGTH 4", 0x101FFF, {0, 44, 12, 52}, 90},
        {Hero.Craft, "CRAFT+2", 0xF0BF00, {0, 159, 12, 52}, 90},
        {Hero.Gold, "GOLD", 0x0FB0FF, {290, 44, 12, 52}, -90},
        {Hero.Lives, "LIVES 1", 0x00B700, {290, 159, 12, 52}, -90}};
    Hero.Strength = "4";
    Hero.Craft = "+2";
    Hero.Gold = "---";
    Hero.Lives = "1";
    const QImage card = Composed(OnHero);
    for (const auto& [value, text, ink, place, degrees] : rows) {
        SCOPED_TRACE(text.toStdString());
        PictureBox strip = SurfaceIn(SmallFont(6, false, ink), {52, 12});
        strip.SetBackColor(Black);
        const QImage expected =
            TurnedStrip(strip, 26 - strip.TextWidth(text) / 2, 6 - strip.TextHeight(text) / 2, text, degrees);
        EXPECT_TRUE(Changed(expected, card.copy(place)).isNull());
        const QString before = std::exchange(value, "9");
        EXPECT_TRUE(place.contains(Changed(card, Composed(OnHero))));
        value = before;
    }
}

TEST_F(GeometryTest, TheCreditOfTheArtistRunsDownTheLeftEdge)
{
    const QImage without = Composed(OnCard);
    Standard.Artist = "Egx Mmm";
    Header().ArtistColor = 0x800000;
    const QImage with = Composed(OnCard);
    PictureBox strip = SurfaceIn(SmallFont(5.25, false, Header().ArtistColor), {180, 5});
    strip.SetBackColor(Cream);
    const QImage expected = TurnedStrip(strip, 0, -2, Standard.Artist, 90);
    EXPECT_TRUE(Changed(expected, with.copy(0, 40, 5, 180)).isNull());
    EXPECT_TRUE(QRect(0, 40, 5, 180).contains(Changed(without, with)));
}

} // namespace deckforge
