#pragma once

#include "core/modInfo.h"
#include "dialogs/CardPreview.h"
#include "editor/frmQDW.h"
#include "files/modFile.h"
#include "support/Failures.h"
#include "support/PixelText.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
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
    template <class Control>
    Control& Find(const char* name)
    {
        auto* const control = window.findChild<Control*>(QString::fromLatin1(name));
        if (!control)
            throw std::runtime_error(name);
        return *control;
    }

    // Controls
    QString Text(const char* name) { return Find<QLineEdit>(name).text(); }
    QString Label(const char* name) { return Find<QLabel>(name).text(); }
    void Type(const char* name, const QString& text)
    {
        auto& box = Find<QLineEdit>(name);
        box.selectAll();
        QTest::keyClicks(&box, text);
    }
    void TypeIn(QComboBox& list, const QString& text)
    {
        list.lineEdit()->selectAll();
        QTest::keyClicks(list.lineEdit(), text);
    }
    /// Chooses an entry as the user does.
    void Choose(const char* name, int entry)
    {
        auto& list = Find<QComboBox>(name);
        list.setCurrentIndex(entry);
        Q_EMIT list.activated(entry);
    }
    void Click(const char* name) { Find<QAbstractButton>(name).click(); }
    void Run(const char* command) { Find<QAction>(command).trigger(); }
    void SelectTab(int tab) { Find<QTabBar>("tbCard").setCurrentIndex(tab - 1); }
    /// A click on the tab that is selected already.
    void ClickTab(int tab)
    {
        auto& tabs = Find<QTabBar>("tbCard");
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
    }
    QString Position() { return Label("lblCurrentCard"); }

    // The set and its preview
    const CardSet& Set() const { return window.Works().Set; }
    const CardTemplates& Boxes() const { return window.Works().Templates; }
    const CardTemplate& Preview() const { return Boxes().Standard; }
    CardPreview& View() { return *window.findChild<CardPreview*>(); }

    /// Where on the preview a pixel of a box is, at any zoom.
    QPoint PointOn(const Box& box, QPoint inBox = {1, 1})
    {
        QPoint corner = box.Place().topLeft() + inBox;
        for (const Box* parent = View().ParentOf(box); parent; parent = View().ParentOf(*parent))
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
    void SendMove(QPoint point, Qt::MouseButton held = Qt::LeftButton)
    {
        QMouseEvent move(QEvent::MouseMove, point, View().mapToGlobal(point), Qt::NoButton, held,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&View(), &move);
    }

    /// A picture in which no two pixels are alike.
    QString PictureFile(const char* name, QSize size = {40, 30})
    {
        const QString path = folder.Path(QString::fromLatin1(name));
        SavePicture(PictureOfPlaces(size), path);
        return path;
    }

    /// Opens a copy of the set that the window holds now, under another name and with its cards changed.
    template <class Change>
    void OpenChangedSet(Change&& change)
    {
        CardSet changed = Set();
        change(changed);
        const QString path = folder.Path(QStringLiteral("set.dkf"));
        ScriptedUser silent;
        ASSERT_TRUE(WriteDKF(changed, path, silent, Report::Silent));
        window.Start(path);
    }

    TestFolder folder;
    ScriptedUser user;
    frmQDW window{user};
};

} // namespace deckforge
