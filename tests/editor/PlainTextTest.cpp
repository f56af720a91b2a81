// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/QtUser.h"
#include "editor/WindowTest.h"
#include "support/EveryKind.h"
#include "support/EveryText.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QTextEdit>
#include <QTimer>
#include <QToolTip>

namespace deckforge {

namespace {

const QString Hostile = QStringLiteral("<img src='none'>");

class PlainTextTest : public WindowTest {
protected:
    /// All visible widgets.
    static void ExpectPlain(const char* where)
    {
        for (const QWidget* widget : QApplication::allWidgets()) {
            const auto* const label = qobject_cast<const QLabel*>(widget);
            const std::string name = where + std::string(": ") + widget->objectName().toStdString();
            EXPECT_FALSE(qobject_cast<const QTextEdit*>(widget)) << name;
            EXPECT_FALSE(Qt::mightBeRichText(widget->whatsThis())) << name;
            const bool isHostile = label && label->isVisible() && label->text().contains(Hostile);
            EXPECT_TRUE(!isHostile || label->textFormat() == Qt::PlainText) << name;
        }
    }
    /// Hovers the mouse over a position of a widget.
    void RestOn(QWidget& widget, QPoint point)
    {
        QHelpEvent rest(QEvent::ToolTip, point, widget.mapToGlobal(point));
        QCoreApplication::sendEvent(&widget, &rest);
        tips += QToolTip::text().contains(Hostile) ? 1 : 0;
    }
    void RestEverywhere(QWidget& all, const char* where)
    {
        for (QWidget* widget : all.findChildren<QWidget*>()) {
            if (!widget->isVisible())
                continue;
            RestOn(*widget, widget->rect().center());
            if (const auto* const view = qobject_cast<QAbstractItemView*>(widget); view && view->model()) {
                for (int column = 0; column < view->model()->columnCount(); ++column)
                    RestOn(*view->viewport(), view->visualRect(view->model()->index(0, column)).center());
            }
            ExpectPlain(where);
        }
    }
    /// Opens a dialog, checks its widgets and closes it.
    template <class Open>
    void Look(const char* name, Open&& open)
    {
        bool isSeen = false;
        QTimer::singleShot(0, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr) << name;
            isSeen = true;
            RestEverywhere(*dialog, name);
            dialog->close();
        });
        open();
        EXPECT_TRUE(isSeen) << name;
    }

    int tips = 0; ///< number of tool tips that showed the text
};

} // namespace

TEST_F(PlainTextTest, TextsOfTheSetAreNeverShownAsRichText)
{
    window.show();
    OpenChangedSet([](CardSet& set) {
        AddElement<Card>(set);
        AddOneOfEachKind(set);
        AddOwnBack(set, {}, Hostile);
        SetEveryText(set, [] { return Hostile; });
        set.Cards[2] = set.Cards[1];
    });
    window.Start(folder.Path(Hostile));
    for (int tab = 1; tab <= 4; ++tab) {
        SelectTab(tab);
        for (auto* slider : window.findChildren<QScrollBar*>()) {
            if (slider->isVisible())
                Q_EMIT slider->sliderMoved(slider->sliderPosition());
        }
        RestEverywhere(window, "the window");
    }
    for (const char* opener : {"changepicpath", "setinfo", "choosefont", "about", "createsheet"})
        Look(opener, [&] { Run(opener); });
    for (const char* list : {"cmdSort", "cmdSortLarge", "cmdSortCharacter"})
        Look(list, [&] { Click(list); });
    QtUser person;
    person.Serve(&window, {});
    Look("a message", [&] { person.ShowMessage({.Text = Hostile, .Title = Hostile}); });
    Look("a question for a text", [&] { person.AskText(Hostile, Hostile, Hostile); });
    Look("the font dialog", [&] { person.AskFont(Hostile, Set().Header.FontTitle); });
    FileDialogRequest file;
    file.Title = file.FileName = Hostile;
    Look("a file dialog", [&] { person.AskSaveFile(file); });
    EXPECT_GT(tips, 12) << "the mouse has hardly met a text";
}

TEST_F(PlainTextTest, AccessibleTextsMatchTheLabels)
{
    const auto read = [&](const char* label) {
        return QAccessible::queryAccessibleInterface(&Find<QLabel>(label))->text(QAccessible::Name);
    };
    Click("cmdCardAdd");
    EXPECT_EQ(read("lblCurrentCard"), "2 (2)");
    EXPECT_EQ(read("lblPicDim"), Text("lblPicDim"));
    QTimer::singleShot(0, [&] {
        root = QApplication::activeModalWidget();
        EXPECT_TRUE(read("lblURL").startsWith("http"));
        EXPECT_TRUE(read("lblContact").startsWith("contact@"));
        root->close();
    });
    Run("about");
}

} // namespace deckforge
