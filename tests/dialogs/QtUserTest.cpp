// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/QtUser.h"
#include "support/TestFolder.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace deckforge {

TEST(QtUser, AMessageBoxShowsAllLinesOrScrolls)
{
    for (const int lines : {2, 500}) {
        QTimer::singleShot(0, [&] {
            QWidget* const box = QApplication::activeModalWidget();
            const QLabel& text = *box->findChild<QLabel*>("qt_msgbox_label");
            EXPECT_GE(text.height(), text.sizeHint().height());
            EXPECT_EQ(text.height() > box->height(), lines == 500);
            for (const QPushButton* button : box->findChildren<QPushButton*>())
                EXPECT_TRUE(box->rect().contains(QRect(button->mapTo(box, QPoint()), button->size())));
            QTest::keyClick(box, Qt::Key_Escape);
        });
        const QString text = QString("1 - OMEN (1%)\r\n").repeated(lines);
        EXPECT_EQ(QtUser().ShowMessage({.Text = text, .Title = {}, .Buttons = BoxButtons::YesNo}),
                  Answer::Cancel)
            << "Esc answers no question";
    }
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
    FileDialogRequest request = {.Title = {}, .FileName = path, .Filter = {}, .DefaultExtension = {}};
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
