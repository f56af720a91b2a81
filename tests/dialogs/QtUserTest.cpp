#include "dialogs/QtUser.h"
#include "support/TestFolder.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace deckforge {

namespace {

/// Shows a box, looks at it, and puts it aside with Esc.
template <class Look>
Answer Shown(const MessageBoxRequest& request, Look&& look)
{
    QTimer looking;
    looking.callOnTimeout([&] {
        QWidget* const box = QApplication::activeModalWidget();
        if (!box)
            return;
        looking.stop();
        look(*box, *box->findChild<QLabel*>("qt_msgbox_label"));
        QTest::keyClick(box, Qt::Key_Escape);
    });
    looking.start(0);
    return QtUser().ShowMessage(request);
}

} // namespace

TEST(QtUser, ABoxHasRoomForItsTitleAndAllOfItsText)
{
    const QString title = "Character playing pieces are created";
    Shown({.Text = "Done", .Title = title}, [&](QWidget& box, QLabel& text) {
        EXPECT_GT(box.width(), box.fontMetrics().horizontalAdvance(title));
        EXPECT_EQ(text.text(), "Done");
    });
    const QString path =
        "The card is saved to the filename:\r\n\r\n/home/player/Documents/cards/THE KING.jpg";
    Shown({.Text = path, .Title = "Save"}, [&](QWidget& /*box*/, QLabel& text) {
        EXPECT_GE(text.width(), text.fontMetrics().horizontalAdvance(path.section('\n', -1)));
        EXPECT_GE(text.height(), text.sizeHint().height());
    });
}

TEST(QtUser, ABoxWithMoreLinesThanTheScreenKeepsItsButtonsInSight)
{
    const QString lines = QString("1 - OMEN (1%)\r\n").repeated(500);
    const auto answer =
        Shown({.Text = lines, .Title = {}, .Buttons = BoxButtons::YesNo}, [&](QWidget& box, QLabel& text) {
            EXPECT_LT(box.height(), box.screen()->availableSize().height());
            EXPECT_GT(text.height(), box.height()) << "scrolls";
            for (const QPushButton* button : box.findChildren<QPushButton*>())
                EXPECT_TRUE(box.rect().contains(QRect(button->mapTo(&box, QPoint()), button->size())));
        });
    EXPECT_EQ(answer, Answer::Cancel) << "Esc answers no question";
}

TEST(QtUser, TheStatusBarHasTheLastProblemAndHowManyMore)
{
    QMainWindow window;
    QtUser user;
    user.ReportProblems({"before there is a window"});
    user.Serve(&window, {});
    user.ReportProblems({"a"});
    EXPECT_EQ(window.statusBar()->currentMessage(), "a");
    user.ReportProblems({"a", "b", "c"});
    EXPECT_EQ(window.statusBar()->currentMessage(), "c (and 2 more)");
    user.ReportProblems({});
    EXPECT_EQ(window.statusBar()->currentMessage(), "");
}

TEST(QtUser, TheReplaceQuestionNamesTheFolderAndAnotherProgramsChange)
{
    const TestFolder folder;
    const QString path = folder.Write("set.dkf", "before");
    FileDialogRequest request = {
        .Title = {}, .FileName = path, .Filter = {}, .DefaultExtension = {}, .Folder = {}};
    const QString plain = "set.dkf already exists in " + folder.Path() + ".\nDo you want to replace it?";
    EXPECT_EQ(ReplaceQuestion(path, request), plain);
    request.Known = AttributesOf(path);
    EXPECT_EQ(ReplaceQuestion(path, request), plain);
    folder.Write("set.dkf", "changed since");
    EXPECT_TRUE(ReplaceQuestion(path, request).contains("\nIt has been changed by another program"));
    const QString other = folder.Write("other.dkf", "another file");
    EXPECT_FALSE(ReplaceQuestion(other, request).contains("changed"));
}

} // namespace deckforge
