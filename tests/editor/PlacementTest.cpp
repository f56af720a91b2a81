// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/WindowTest.h"

namespace deckforge {

class PlacementTest : public WindowTest {
protected:
    /// The offset of an element's picture in pixels.
    template <class Record>
    static QPointF Offset(const Record& element)
    {
        return QPointF(element.PictureLeft, element.PictureTop) / 15;
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(&View(), key, held); }
    void Drop(const QString& path, const Box& box, QPoint inBox = {1, 1})
    {
        WindowTest::Drop(path, View().mapTo(&window, PointOn(box, inBox)));
    }
    using WindowTest::Drop;
};

TEST_F(PlacementTest, ADraggedPictureMovesByPixelsOfTheCardAtEveryZoom)
{
    ChoosePicture("cmdGetPic", folder.WritePicture("imp.bmp", PictureOfPlaces({200, 150})));
    for (const int zoom : {1, 2, 3}) {
        Click(qPrintable(QString("cmdZoom%1").arg(zoom)));
        Drag(Preview().picImage, {50, 50}, {4, -3});
        EXPECT_EQ(Offset(FirstCard()), QPointF(4, -3) * zoom) << zoom;
    }
    EXPECT_EQ(Preview().picImage.Place(), QRect(12, -9, 200, 150));
    Drag(Preview().lblTitle, {3, 3}, {9, 9});
    EXPECT_EQ(FirstCard().PictureLeft, 180);
}

TEST_F(PlacementTest, TheTextFollowsTheHandleWhichStopsAtItsBounds)
{
    Type("txtBold", "STRENGTH 2");
    Drag(Preview().lblPicSize, {20, 1}, {0, 20});
    EXPECT_EQ(FirstCard().FrameHeight, 125);
    EXPECT_EQ(Preview().lblBold.Top, 40 + 125 + 3);
    EXPECT_EQ(Preview().lblInformation.Place(), QRect(5, 180, 139, 61));
    EXPECT_EQ(Text("lblPicDim"), "139W * 125H");
    Drag(Preview().lblPicSize, {20, 1}, {0, 200});
    EXPECT_EQ(FirstCard().FrameHeight, 208 - 40);
    Drag(Preview().lblPicSize, {20, 1}, {0, -200});
    EXPECT_EQ(FirstCard().FrameHeight, 60 - 40);

    SelectTab(2);
    Drag(Boxes().Large.lblPicSizeLarge, {1, 50}, {30, 7});
    EXPECT_EQ(Set().LargeCards[1].FrameHeight, 129 + 30 - 8);
    EXPECT_EQ(Boxes().Large.lblTitleLarge.Place(), QRect(164, 8, 132, 25));
    EXPECT_EQ(Text("lblPicDimLarge"), "151W * 238H");
    Drag(Boxes().Large.lblPicSizeLarge, {1, 50}, {300, 0});
    EXPECT_EQ(Set().LargeCards[1].FrameHeight, 180 - 8);

    SelectTab(3);
    Drag(Boxes().Character.lblPicSizeCharacter, {1, 50}, {-22, 0});
    EXPECT_EQ(Hero().FrameHeight, 100 - 1);
    EXPECT_EQ(Boxes().Character.lblSpecial.Place(), QRect(106, 43, 166, 177));
    EXPECT_EQ(Text("lblPicDimChar"), "(99W*220H)");
}

TEST_F(PlacementTest, KeysMoveThePictureToTheEdgesOfItsFrame)
{
    ChoosePicture("cmdGetPic", folder.WritePicture("imp.bmp", PictureOfPlaces({200, 50})));
    const std::pair<Qt::Key, QPointF> steps[] = {{Qt::Key_Right, {1, 0}}, {Qt::Key_Down, {1, 1}},
                                                 {Qt::Key_Left, {0, 1}},  {Qt::Key_Up, {0, 0}},
                                                 {Qt::Key_End, {-62, 0}}, {Qt::Key_PageDown, {-62, 52}},
                                                 {Qt::Key_Home, {0, 52}}, {Qt::Key_PageUp, {0, 0}},
                                                 {Qt::Key_X, {0, 0}},     {Qt::Key_Right, {1, 0}}};
    for (const auto& [key, expected] : steps) {
        Press(key);
        EXPECT_EQ(Offset(FirstCard()), expected) << key;
    }
    Press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(Offset(FirstCard()), QPointF(1, 0));
    Press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(FirstCard().FrameHeight, 168);
    Press(Qt::Key_Home, Qt::ShiftModifier);
    Press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(FirstCard().FrameHeight, 20);
    EXPECT_EQ(Offset(FirstCard()), QPointF(1, 0));
}

TEST_F(PlacementTest, CharacterAndPieceHaveSeparatePictures)
{
    SelectTab(3);
    const QString path = folder.WritePicture("hero.bmp", PictureOfPlaces({60, 60}));
    ChoosePicture("cmdGetCharPic", path);
    ChoosePicture("cmdGetPlayingPiecePic", path);
    Drag(Boxes().Character.picImageCharacter, {10, 10}, {5, 6});
    Click("chkShowPlayingPiece");
    Drag(Boxes().PlayingPiece.picPlayingPieceImage, {10, 10}, {-2, 3});
    EXPECT_EQ(Offset(Hero()), QPointF(5, 6));
    EXPECT_EQ(QPointF(Hero().PlayingPieceLeft, Hero().PlayingPieceTop), QPointF(-2, 3) * 15);
}

TEST_F(PlacementTest, ADroppedPictureIsUsedWhereItIsDropped)
{
    const QString path = folder.WritePicture("imp.bmp");
    const auto expectDropped = [&](const QString& field, const Box& box, QPoint inBox = {1, 1}) {
        Drop(path, box, inBox);
        EXPECT_EQ(field, path);
    };
    expectDropped(FirstCard().Picture, Preview().picFrame, {120, 90});
    expectDropped(FirstCard().Background, Preview().lblInformation);
    Drop(path, Preview().picBack);
    EXPECT_EQ(FirstCard().CardBack, 28);
    SelectTab(3);
    expectDropped(Hero().Background, Boxes().Character.lblCharacter);
    Click("chkShowCharacterBack");
    expectDropped(Hero().CardBackPicture, Boxes().Character.picCharacterBack);
    EXPECT_EQ(Hero().CardBack, 3);
    Click("chkShowPlayingPiece");
    expectDropped(Hero().PlayingPiece, Boxes().PlayingPiece.picPlayingPieceFrame, {100, 200});
    SelectTab(4);
    expectDropped(Back().Picture, Boxes().NewBack.picNewBack);
    Drop(folder.Path("notes.txt"), Boxes().NewBack.picNewBack);
    EXPECT_EQ(Back().Picture, path);
}

TEST_F(PlacementTest, ADroppedSetIsOpenedAfterTheQuestion)
{
    OpenChangedSet([](CardSet& set) { set.Cards[1].Title = "Stored"; });
    const QString set = folder.Path("set.dkf");
    Type("txtTitle", "Changed");
    user.WillAnswer(Answer::Cancel);
    Drop(set);
    EXPECT_EQ(Text("txtTitle"), "Changed");
    window.ShowProgress(1, 3);
    Drop(set); // rejected during a run
    window.ShowProgress(3, 3);
    user.WillAnswer(Answer::No);
    Drop(set);
    EXPECT_EQ(Text("txtTitle"), "Stored");
}

} // namespace deckforge
