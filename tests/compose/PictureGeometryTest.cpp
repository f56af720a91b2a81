// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/GeometryTest.h"

namespace deckforge {

TEST_F(GeometryTest, SymbolsAreInTheirCorners)
{
    const std::pair<On, QRect> rows[] = {{OnCard, {0, 256 - 2 - 11, 7, 11}},
                                         {OnLarge, {304 - 2 - 7, 256 - 2 - 11, 7, 11}},
                                         {OnHero, {13 + 276 - 2 - 7, 13 + 228 - 2 - 11, 7, 11}}};
    const QString symbol = Folder.WritePicture("s.bmp", PictureOf(PixelRows(11, "rrrrrrr")));
    for (const auto& [kind, place] : rows) {
        Header().Symbol.clear();
        (void)ShowSet(Shop);
        const QImage without = Composed(kind);
        Header().Symbol = symbol;
        (void)ShowSet(Shop);
        EXPECT_EQ(Changed(without, Composed(kind)), place) << kind;
    }
}

TEST_F(GeometryTest, BackgroundAndOutlineOfThePictureFillTheFrame)
{
    Hero.Background = Folder.WritePicture("ground.bmp", PictureOfPlaces({276, 228}));
    const std::tuple<On, bool&, bool&, QRect, int> rows[] = {
        {OnCard, Standard.ShowPicture, Standard.Frame, {5, 40, 139, 60}, 60},
        {OnLarge, Large.ShowPicture, Large.Frame, {8, 8, 100, 238}, 238},
        {OnHero, Hero.ShowPicture, Hero.Frame, {14, 14, 100, 220}, 218}};
    // Hide the boxes that move with the frame.
    for (Box* caption : {&Boxes.Character.lblAlignmentTitle, &Boxes.Character.lblStartTitle,
                         &Boxes.Character.lblSpecialTitle})
        caption->Caption.clear();
    for (const auto& [kind, isShown, isOutlined, place, outlineHeight] : rows) {
        SCOPED_TRACE(kind);
        isShown = false;
        isOutlined = true;
        const QImage without = Composed(kind);
        isShown = true;
        const QImage outlined = Composed(kind);
        isOutlined = false;
        EXPECT_EQ(Changed(without, Composed(kind)), place);
        const QRect outline(place.topLeft(), QSize(place.width(), outlineHeight));
        EXPECT_EQ(Changed(without, outlined), outline);
        PictureBox expected(outlined.size());
        expected.LineBox(outline.left(), outline.top(), outline.right(), outline.bottom());
        const auto isField = [](QRgb pixel) { return pixel == qRgb(255, 255, 255); };
        const QImage box = expected.Image().Pixels();
        EXPECT_TRUE(Where(outline, [&](int x, int y) {
                        return isField(outlined.pixel(x, y)) != isField(box.pixel(x, y));
                    }).isNull());
    }
}

TEST_F(GeometryTest, APictureIsClippedByItsFrame)
{
    struct Placed {
        On Kind;
        QString& Path;
        double& Left;
        double& Top;
        bool* Outlined;
        QRect Frame;
    };
    Character& hero = Hero;
    const Placed rows[] = {
        {OnCard,
         Standard.Picture,
         Standard.PictureLeft,
         Standard.PictureTop,
         &Standard.Frame,
         {5, 40, 139, 60}},
        {OnLarge, Large.Picture, Large.PictureLeft, Large.PictureTop, &Large.Frame, {8, 8, 100, 238}},
        {OnHero, hero.Picture, hero.PictureLeft, hero.PictureTop, nullptr, {14, 14, 100, 220}},
        {OnHero, hero.Picture, hero.PictureLeft, hero.PictureTop, &hero.Frame, {14, 14, 100, 218}},
        {OnPiece,
         hero.PlayingPiece,
         hero.PlayingPieceLeft,
         hero.PlayingPieceTop,
         nullptr,
         {9, 24, 132, 222}}};
    const QString small = Folder.WritePicture("small.bmp", PictureOfPlaces({30, 20}));
    const QString big = Folder.WritePicture("big.bmp", PictureOfPlaces({200, 250}));
    Standard.ShowPicture = true;
    for (const Placed& row : rows) {
        SCOPED_TRACE(testing::Message() << row.Kind << (row.Outlined != nullptr));
        if (row.Outlined != nullptr)
            *row.Outlined = true;
        const int inset = row.Outlined != nullptr ? 1 : 0;
        const QPoint corner = row.Frame.topLeft() + QPoint(inset, inset);
        row.Path.clear();
        Composed(row.Kind); // once before: the outline takes the colour of the composition before
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

        // Clipped at the left and top, it is as large as the frame and extends past its outline.
        const auto [cut, placeOfCut] = shown(big, -20, -5);
        EXPECT_EQ(placeOfCut, QRect(corner, row.Frame.size().boundedTo({180, 245})));
        EXPECT_EQ(FromRgb(cut.pixel(placeOfCut.topLeft())), ColourOfPlace(20, 5));

        // Clipped at the right and bottom, it ends inside the outline.
        const auto [low, placeOfLow] = shown(small, row.Frame.width() - 12, row.Frame.height() - 9);
        EXPECT_EQ(placeOfLow.size(), QSize(12 - 2 * inset, 9 - 2 * inset));
        EXPECT_EQ(FromRgb(low.pixel(placeOfLow.topLeft())), ColourOfPlace(0, 0));

        EXPECT_TRUE(shown(small, -30, 0).second.isNull()) << "gone at the left";
        EXPECT_TRUE(shown(small, 0, row.Frame.height() - inset).second.isNull()) << "gone at the bottom";
    }
}

TEST_F(GeometryTest, AFrameThatFollowsThePictureMovesInItsPlace)
{
    Standard.ShowPicture = Standard.Resize = Standard.Frame = true;
    Large.Resize = Large.Frame = true;
    Standard.Picture = Large.Picture = Folder.WritePicture("p.bmp", PictureOfPlaces({40, 50}));
    Standard.PictureLeft = Large.PictureLeft = 15 * 6;
    Standard.PictureTop = Large.PictureTop = 15 * 4;
    const std::tuple<On, bool&, QRect, QPoint> rows[] = {
        // The standard card's frame is as wide as the picture, the large card's as high.
        {OnCard, Standard.ShowPicture, {5 + 6, 40, 40, 60}, {1, 4 + 1}},
        {OnLarge, Large.ShowPicture, {8, 8 + 4, 100, 50}, {6 + 1, 1}}};
    for (const auto& [kind, isShown, frame, offset] : rows) {
        const QImage with = Composed(kind);
        isShown = false;
        EXPECT_EQ(Changed(Composed(kind), with), frame);
        EXPECT_EQ(FromRgb(with.pixel(frame.topLeft() + offset)), ColourOfPlace(0, 0));
    }
}

} // namespace deckforge
