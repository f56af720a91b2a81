#include "editor/WindowTest.h"

#include <QMimeData>

namespace deckforge {

namespace {

class PlacementTest : public WindowTest {
protected:
    Card FirstCard() const { return Set().Cards[1]; }
    void Choose(const char* button, const QString& path)
    {
        user.WillChoose(path);
        Click(button);
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(&View(), key, held); }
    void Drop(QPoint point, const QString& path)
    {
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(path)});
        const QPoint place = View().mapTo(&window, point);
        QDragEnterEvent enter(place, Qt::CopyAction, &file, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window, &enter);
        QDragMoveEvent move(place, Qt::CopyAction, &file, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window, &move);
        QDropEvent drop(place, Qt::CopyAction, &file, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window, &drop);
    }
};

TEST_F(PlacementTest, ADraggedPictureMovesByPixelsOfTheCardAtEveryZoom)
{
    Choose("cmdGetPic", PictureFile("imp.bmp", {200, 150}));
    for (const int zoom : {1, 2, 3}) {
        Find<QAbstractButton>(qPrintable(QStringLiteral("cmdZoom%1").arg(zoom))).click();
        const Card before = FirstCard();
        Drag(Preview().picImage, {50, 50}, {4, -3});
        EXPECT_EQ(FirstCard().PictureLeft - before.PictureLeft, 60) << zoom;
        EXPECT_EQ(FirstCard().PictureTop - before.PictureTop, -45) << zoom;
    }
    EXPECT_EQ(Preview().picImage.Place(), QRect(12, -9, 200, 150));
    Drag(Preview().lblTitle, {3, 3}, {9, 9});
    EXPECT_EQ(FirstCard().PictureLeft, 180);
}

TEST_F(PlacementTest, TheTextFollowsTheHandleWhichStopsAtItsBounds)
{
    Type("txtBold", QStringLiteral("STRENGTH 2"));
    Drag(Preview().lblPicSize, {20, 1}, {0, 20});
    EXPECT_EQ(FirstCard().FrameHeight, 125);
    EXPECT_EQ(Preview().lblBold.Top, 40 + 125 + 3);
    EXPECT_EQ(Preview().lblInformation.Place(), QRect(5, 180, 139, 61));
    EXPECT_EQ(Label("lblPicDim"), QStringLiteral("139W * 125H"));
    Drag(Preview().lblPicSize, {20, 1}, {0, 200});
    EXPECT_EQ(FirstCard().FrameHeight, 208 - 40);
    Drag(Preview().lblPicSize, {20, 1}, {0, -200});
    EXPECT_EQ(FirstCard().FrameHeight, 60 - 40);

    SelectTab(2);
    Drag(Boxes().Large.lblPicSizeLarge, {1, 50}, {30, 7});
    EXPECT_EQ(Set().LargeCards[1].FrameHeight, 129 + 30 - 8);
    EXPECT_EQ(Boxes().Large.lblTitleLarge.Place(), QRect(164, 8, 132, 25));
    EXPECT_EQ(Label("lblPicDimLarge"), QStringLiteral("151W * 238H"));
    Drag(Boxes().Large.lblPicSizeLarge, {1, 50}, {300, 0});
    EXPECT_EQ(Set().LargeCards[1].FrameHeight, 180 - 8);

    SelectTab(3);
    Drag(Boxes().Character.lblPicSizeCharacter, {1, 50}, {-22, 0});
    EXPECT_EQ(Set().Characters[1].FrameHeight, 100 - 1);
    EXPECT_EQ(Boxes().Character.lblSpecial.Place(), QRect(106, 43, 166, 177));
    EXPECT_EQ(Label("lblPicDimChar"), QStringLiteral("(99W*220H)"));
}

TEST_F(PlacementTest, KeysLayThePictureAtTheEdgesOfItsFrame)
{
    Choose("cmdGetPic", PictureFile("imp.bmp", {200, 50}));
    const auto offsets = [&] { return QPointF(FirstCard().PictureLeft, FirstCard().PictureTop) / 15; };
    const struct {
        Qt::Key Key;
        QPointF Expected;
    } steps[] = {{Qt::Key_Right, {1, 0}}, {Qt::Key_Down, {1, 1}},   {Qt::Key_Left, {0, 1}},
                 {Qt::Key_Up, {0, 0}},    {Qt::Key_End, {-62, 0}},  {Qt::Key_PageDown, {-62, 52}},
                 {Qt::Key_Home, {0, 52}}, {Qt::Key_PageUp, {0, 0}}, {Qt::Key_X, {0, 0}},
                 {Qt::Key_Right, {1, 0}}};
    for (const auto& step : steps) {
        Press(step.Key);
        EXPECT_EQ(offsets(), step.Expected) << step.Key;
    }
    Press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(offsets(), QPointF(1, 0));
    Press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(FirstCard().FrameHeight, 106);
    Press(Qt::Key_End, Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(FirstCard().FrameHeight, 168);
    Press(Qt::Key_Home, Qt::ShiftModifier);
    Press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(FirstCard().FrameHeight, 20);
    EXPECT_EQ(offsets(), QPointF(1, 0));
}

TEST_F(PlacementTest, EdgesOfALargePictureAreFoundByThePictureOfTheStandardCard)
{
    Choose("cmdGetPic", PictureFile("imp.bmp", {30, 20}));
    SelectTab(2);
    Choose("cmdGetPicLarge", PictureFile("hill.bmp", {100, 90}));
    Press(Qt::Key_End);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Set().LargeCards[1].PictureLeft, (121 - 1 - 30) * 15);
    EXPECT_EQ(Set().LargeCards[1].PictureTop, (238 - 3 - 20) * 15);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Set().LargeCards[1].FrameHeight, 121);
}

TEST_F(PlacementTest, CharacterAndPieceMoveEachTheirOwnPicture)
{
    SelectTab(3);
    Choose("cmdGetCharPic", PictureFile("hero.bmp", {60, 60}));
    Choose("cmdGetPlayingPiecePic", PictureFile("piece.bmp", {60, 60}));
    Drag(Boxes().Character.picImageCharacter, {10, 10}, {5, 6});
    Press(Qt::Key_Right);
    Click("chkShowPlayingPiece");
    Drag(Boxes().PlayingPiece.picPlayingPieceImage, {10, 10}, {-2, 3});
    Press(Qt::Key_PageDown);
    const Character& hero = Set().Characters[1];
    EXPECT_EQ(QPointF(hero.PictureLeft, hero.PictureTop), QPointF(90, 90));
    EXPECT_EQ(QPointF(hero.PlayingPieceLeft, hero.PlayingPieceTop), QPointF(-30, (222 - 3 - 60) * 15));
}

TEST_F(PlacementTest, AFrameThatHugsItsPictureStandsInTheMiddle)
{
    Choose("cmdGetPic", PictureFile("imp.bmp", {43, 60}));
    Click("chkResize");
    EXPECT_EQ(FirstCard().PictureLeft, (142 - 43) / 2.0 * 15);
    EXPECT_EQ(Preview().picFrame.Width, 43);
    for (int pixel = 0; pixel < 8; ++pixel) // in half pixels, and still as far as the pointer
        Drag(Preview().picImage, {10, 10}, {1, 0});
    EXPECT_EQ(FirstCard().PictureLeft, (142 - 43) / 2.0 * 15 + 8 * 15);
    EXPECT_EQ(Preview().picImage.Left, 0);
    Click("chkResize");
    EXPECT_EQ(Preview().picFrame.Place(), QRect(5, 40, 139, 105));
}

TEST_F(PlacementTest, ThePointerTellsWhatCanBeMoved)
{
    const auto pointerOn = [&](const Box& box) {
        SendMove(PointOn(box), Qt::NoButton);
        return View().cursor().shape();
    };
    EXPECT_EQ(pointerOn(Preview().picImage), Qt::SizeAllCursor);
    EXPECT_EQ(pointerOn(Preview().lblPicSize), Qt::SizeVerCursor);
    EXPECT_EQ(pointerOn(Preview().lblTitle), Qt::ArrowCursor);
    Click("chkShowPicture");
    EXPECT_EQ(pointerOn(Preview().picImage), Qt::ArrowCursor);
    SelectTab(2);
    EXPECT_EQ(pointerOn(Boxes().Large.lblPicSizeLarge), Qt::SizeHorCursor);
}

TEST_F(PlacementTest, ADroppedPictureGoesWhereItFalls)
{
    const QString path = PictureFile("imp.bmp");
    Drop(PointOn(Preview().picFrame, {80, 80}), path);
    EXPECT_EQ(FirstCard().Picture, path);
    const QString other = PictureFile("ogre.bmp");
    Drop(PointOn(Preview().picFrame, {120, 90}), other); // on the frame, beside the picture
    EXPECT_EQ(FirstCard().Picture, other);
    user.WillCancelDialog();
    Click("cmdGetPic");
    EXPECT_EQ(user.OpenDialogs.back().Folder, folder.WithSeparator());
    Drop(PointOn(Preview().lblInformation), path);
    EXPECT_EQ(FirstCard().Background, path);
    Drop(PointOn(Preview().picBack), path);
    EXPECT_EQ(FirstCard().CardBack, 28);
    SelectTab(3);
    Drop(PointOn(Boxes().Character.lblCharacter), path);
    EXPECT_EQ(Set().Characters[1].Background, path);
    Click("chkShowCharacterBack");
    Drop(PointOn(Boxes().Character.picCharacterBack), path);
    EXPECT_EQ(Set().Characters[1].CardBackPicture, path);
    EXPECT_EQ(Set().Characters[1].CardBack, 3);
    Click("chkShowPlayingPiece");
    Drop(PointOn(Boxes().PlayingPiece.picPlayingPieceFrame, {100, 200}), path);
    EXPECT_EQ(Set().Characters[1].PlayingPiece, path);
    SelectTab(4);
    Drop(PointOn(Boxes().NewBack.picNewBack), path);
    EXPECT_EQ(Set().NewCardBacks[1].Picture, path);
    Drop(PointOn(Boxes().NewBack.picNewBack), folder.Path(QStringLiteral("notes.txt")));
    EXPECT_EQ(Set().NewCardBacks[1].Picture, path);
}

TEST_F(PlacementTest, ADroppedSetIsOpenedAfterTheQuestion)
{
    OpenChangedSet([](CardSet& set) { set.Cards[1].Title = QStringLiteral("Stored"); });
    Type("txtTitle", QStringLiteral("Changed"));
    user.WillAnswer(Answer::Cancel);
    Drop({1, 1}, folder.Path(QStringLiteral("set.dkf")));
    QCoreApplication::processEvents();
    EXPECT_EQ(Text("txtTitle"), QStringLiteral("Changed"));
    window.ShowProgress(1, 3);
    Drop({1, 1}, folder.Path(QStringLiteral("set.dkf"))); // refused while a run goes on
    window.ShowProgress(3, 3);
    user.WillAnswer(Answer::No);
    Drop({1, 1}, folder.Path(QStringLiteral("set.dkf")));
    QCoreApplication::processEvents();
    EXPECT_EQ(Text("txtTitle"), QStringLiteral("Stored"));
}

} // namespace

} // namespace deckforge
