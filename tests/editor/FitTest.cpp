// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/WindowTest.h"
#include "fitting/FittedPicture.h"
#include "imaging/PictureLoader.h"

#include <QApplication>
#include <QClipboard>
#include <QSlider>
#include <QTimer>

namespace deckforge {

/// Taking photos: fitted to their frames, pasted and dropped.
class FitTest : public WindowTest {
protected:
    FitTest()
    {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        user.WillChoose(folder.Path("wood.dkf"));
        Run("save");
        QImage image(1200, 900, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        EXPECT_TRUE(image.save(photo));
    }

    /// Opens the dialog with a button, runs the steps in it, and presses a key.
    template <class Steps>
    void Fit(const char* button, Qt::Key end, Steps&& steps)
    {
        QTimer::singleShot(0, [&] {
            root = QApplication::activeModalWidget();
            ASSERT_NE(root, nullptr);
            EXPECT_TRUE(QTest::qWaitForWindowActive(root));
            steps();
            QTest::keyClick(root, end);
            root = &window;
        });
        Click(button);
    }

    const QString photo = folder.Path("photo.png");
    const QString pictures = folder.Path("New set pictures/");
};

TEST_F(FitTest, AFittedPhotoFillsItsFrameAndHasAPrintTwin)
{
    user.WillChoose(photo);
    Click("cmdGetPic");
    auto& offer = Find<QAbstractButton>("cmdFitOffer");
    EXPECT_TRUE(offer.isVisible());
    window.findChild<CardPreview*>()->setFocus();
    QTest::keyClick(&View(), Qt::Key_Right);
    Fit("cmdFitOffer", Qt::Key_Return, [this] {
        Find<QSlider>("hsbZoom").setValue(250);
        EXPECT_TRUE(Text("lblQuality").startsWith("Prints at "));
    });
    EXPECT_FALSE(offer.isVisible());
    const QString fitted = pictures + "photo.png";
    EXPECT_EQ(FirstCard().Picture, fitted);
    EXPECT_EQ(FirstCard().PictureLeft, 0);
    EXPECT_EQ(Preview().picImage.Place(), QRect({0, 0}, Preview().picFrame.Place().size()));
    EXPECT_EQ(PrintTwinsOf(fitted).front().Scale, 4) << "half of the photo's width for 139 pixels";

    // Again on the same photo, from the part chosen before.
    const double zoomed = OriginOf(fitted)->Part.width();
    Fit("cmdFitPic", Qt::Key_Return, [this] { QTest::keyClick(root->focusWidget(), Qt::Key_Left); });
    EXPECT_EQ(FirstCard().Picture, pictures + "photo 2.png");
    EXPECT_EQ(OriginOf(FirstCard().Picture)->Photo, photo);
    EXPECT_NEAR(OriginOf(FirstCard().Picture)->Part.width(), zoomed, 0.01);
    Fit("cmdFitPic", Qt::Key_Escape, [] {});
    EXPECT_EQ(FirstCard().Picture, pictures + "photo 2.png");
}

TEST_F(FitTest, EachPictureIsFittedToItsOwnFrame)
{
    const std::tuple<int, const char*, const char*, QSize> rows[] = {
        {1, "cmdBackPic", "cmdFitBackPic", {150, 254}},
        {2, "cmdGetPicLarge", "cmdFitPicLarge", {121, 238}},
        {2, "cmdBackPicLarge", "cmdFitBackPicLarge", {302, 254}},
        {2, "cmdCardbackLarge", "cmdFitCardbackLarge", {302, 254}},
        {3, "cmdGetCharPic", "cmdFitCharPic", {121, 220}},
        {3, "cmdBackCharPic", "cmdFitBackCharPic", {276, 228}},
        {3, "cmdGetPlayingPiecePic", "cmdFitPlayingPiecePic", {132, 222}},
        {4, "cmdGetNewBackPicture", "cmdFitNewBackPicture", {254, 150}}};
    int number = 1;
    for (const auto& [tab, choose, fit, size] : rows) {
        SelectTab(tab);
        user.WillChoose(photo);
        Click(choose);
        Fit(fit, Qt::Key_Return, [] {});
        const QString made =
            pictures + (number++ == 1 ? QString("photo.png") : QString("photo %1.png").arg(number - 1));
        EXPECT_EQ(QImage(made).size(), size) << fit;
    }
}

TEST_F(FitTest, ABackOfTheSetIsFittedInItsDialog)
{
    QTimer::singleShot(0, [this] {
        root = QApplication::activeModalWidget();
        ASSERT_NE(root, nullptr);
        QWidget* const setInfo = root;
        user.WillChoose(photo);
        Fit("cmdCBFit", Qt::Key_Return, [] {});
        root = setInfo;
        EXPECT_EQ(Text("txtCBPicture"), pictures + "photo.png");
        QTest::keyClick(setInfo, Qt::Key_Escape);
    });
    Run("setinfo");
    root = &window;
    EXPECT_EQ(QImage(pictures + "photo.png").size(), QSize(150, 254));
}

TEST_F(FitTest, ARejectedPictureIsNamedInTheStatusBar)
{
    user.WillChoose(folder.Write("notes.png", "no picture"));
    Click("cmdGetPic");
    ASSERT_EQ(user.Problems.size(), 1);
    EXPECT_TRUE(user.Problems.front().startsWith(folder.Path("notes.png: Invalid picture")));
    EXPECT_FALSE(Find<QAbstractButton>("cmdFitOffer").isVisible());
}

TEST_F(FitTest, PicturesArePastedAndDroppedWithoutAFile)
{
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    QApplication::clipboard()->setImage(image);
    Line("txtTitle").setFocus();
    QTest::keyClick(&Line("txtTitle"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(FirstCard().Picture, pictures + "Picture.png");
    EXPECT_EQ(QImage(FirstCard().Picture).convertToFormat(QImage::Format_RGB32), image);

    QApplication::clipboard()->setText("Wolf");
    Line("txtTitle").selectAll();
    QTest::keyClick(&Line("txtTitle"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(FirstCard().Title, "Wolf") << "text goes where the cursor is";

    Drop({QUrl::fromLocalFile(photo), QUrl::fromLocalFile(folder.WritePicture("b.JPG"))},
         View().mapTo(&window, PointOn(Preview().picFrame)));
    EXPECT_EQ(Set().Cards.Count(), 2);
    EXPECT_EQ(FirstCard().Picture, photo);
    EXPECT_EQ(Set().Cards[2].Picture, folder.Path("b.JPG"));
}

} // namespace deckforge
