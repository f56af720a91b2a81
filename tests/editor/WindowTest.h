// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/SetTables.h"
#include "core/modInfo.h"
#include "dialogs/CardPreview.h"
#include "editor/frmQDW.h"
#include "files/modFile.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>

namespace deckforge {

/// The window over a new set, with a user who answers from a script.
class WindowTest : public testing::Test {
protected:
    /// A control or a command of the window, or of the dialog that is open.
    template <class Control>
    Control& Find(const char* name)
    {
        auto* const control = root->findChild<Control*>(name);
        if (!control)
            throw std::runtime_error(name);
        return *control;
    }

    // Controls
    /// The texts of controls, separated by bars; for a slider its value and maximum, "1 (2)".
    QString Text(const std::vector<const char*>& names)
    {
        QStringList texts;
        for (const char* name : names) {
            auto& control = Find<QWidget>(name);
            if (const auto* slider = qobject_cast<QScrollBar*>(&control))
                texts.append(
                    PositionText(static_cast<int16>(slider->value()), static_cast<int16>(slider->maximum())));
            else
                texts.append(
                    control.property(control.inherits("QComboBox") ? "currentText" : "text").toString());
        }
        return texts.join('|');
    }
    QString Text(const char* name) { return Text(std::vector{name}); }
    QLineEdit& Line(const char* name)
    {
        auto* const list = root->findChild<QComboBox*>(name);
        return list ? *list->lineEdit() : Find<QLineEdit>(name);
    }
    void Type(const char* name, const QString& text)
    {
        Line(name).selectAll();
        QTest::keyClicks(&Line(name), text);
    }
    /// Selects an entry as the user would.
    void Choose(const char* name, int entry)
    {
        auto& list = Find<QComboBox>(name);
        list.setCurrentIndex(entry);
        Q_EMIT list.activated(entry);
    }
    void Slide(const char* name, int place) { Find<QScrollBar>(name).setValue(place); }
    void Click(const char* name) { Find<QAbstractButton>(name).click(); }
    void Run(const char* command) { Find<QAction>(command).trigger(); }
    void SelectTab(int tab) { Find<QTabBar>("tbCard").setCurrentIndex(tab - 1); }
    /// Clicks the tab that is already selected.
    void ClickTab(int tab)
    {
        auto& tabs = Find<QTabBar>("tbCard");
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
    }
    /// Turns the wheel over a control.
    static void TurnWheel(QWidget& control, int by)
    {
        QWheelEvent turn({2, 2}, control.mapToGlobal(QPointF(2, 2)), {}, {0, by}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&control, &turn);
    }

    // The set and its preview
    const CardSet& Set() const { return window.Works().Set; }
    const Card& FirstCard() const { return Set().Cards[1]; }
    const Character& Hero() const { return Set().Characters[1]; }
    const NewCardBack& Back() const { return Set().NewCardBacks[1]; }
    const CardTemplates& Boxes() const { return window.Works().Templates; }
    const CardTemplate& Preview() const { return Boxes().Standard; }
    CardPreview& View() { return *window.findChild<CardPreview*>(); }

    /// Converts a pixel of a box to a position on the preview, at the current zoom.
    QPoint PointOn(const Box& box, QPoint inBox = {1, 1})
    {
        QPoint corner = box.Place().topLeft() + inBox;
        for (const Box* parent = box.Parent; parent; parent = parent->Parent)
            corner += parent->Place().topLeft() + QPoint(parent->BorderWidth(), parent->BorderWidth());
        const QPoint origin = Preview().picCard.Place().topLeft();
        return (corner - origin) * View().Zoom() + QPoint(View().Zoom() / 2, View().Zoom() / 2);
    }
    void Drag(const Box& box, QPoint from, QPoint pixelsOfCard)
    {
        const QPoint start = PointOn(box, from);
        const QPoint end = start + pixelsOfCard * View().Zoom();
        QTest::mousePress(&View(), Qt::LeftButton, {}, start);
        SendMove((start + end) / 2);
        SendMove(end);
        QTest::mouseRelease(&View(), Qt::LeftButton, {}, end);
    }
    void SendMove(QPoint point)
    {
        QMouseEvent move(QEvent::MouseMove, point, View().mapToGlobal(point), Qt::NoButton, Qt::LeftButton,
                         {});
        QCoreApplication::sendEvent(&View(), &move);
    }

    /// Drops a file at a position of the window.
    void Drop(const QString& path, QPoint place = {1, 1}) { Drop(QList{QUrl::fromLocalFile(path)}, place); }
    void Drop(const QList<QUrl>& urls, QPoint place)
    {
        QMimeData file;
        file.setUrls(urls);
        QDragEnterEvent enter(place, Qt::CopyAction, &file, Qt::LeftButton, {});
        QDragMoveEvent move(place, Qt::CopyAction, &file, Qt::LeftButton, {});
        QDropEvent drop(place, Qt::CopyAction, &file, Qt::LeftButton, {});
        for (QEvent* event : std::initializer_list<QEvent*>{&enter, &move, &drop})
            QCoreApplication::sendEvent(&window, event);
        QCoreApplication::processEvents();
    }

    /// Clicks a picture button and chooses a file in its dialog.
    void ChoosePicture(const char* button, const QString& path)
    {
        user.WillChoose(path);
        Click(button);
    }

    /// Opens a copy of the current set under another name and with changed cards.
    template <class Change>
    void OpenChangedSet(Change&& change)
    {
        CardSet changed = Set();
        change(changed);
        const QString path = folder.Path("set.dkf");
        ScriptedUser silent;
        ASSERT_TRUE(WriteSet(changed, path, silent));
        window.Start(path);
    }

    TestFolder folder;
    ScriptedUser user;
    frmQDW window{user};
    QWidget* root = &window;
};

} // namespace deckforge
