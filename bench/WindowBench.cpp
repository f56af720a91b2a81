// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/Ratio.h"
#include "commands/SetCommands.h"
#include "core/modInfo.h"
#include "editor/frmQDW.h"
#include "platform/UserPort.h"

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTemporaryDir>

// Response times of the window with a set of 2,000 cards, including repaints, relative to a screen frame of
// 16 ms.

namespace deckforge {

namespace {

/// The window with 2,000 cards, each with one of a hundred pictures, and one record of each other kind.
struct OpenWindow {
    OpenWindow()
    {
        constexpr int cards = 2000;
        constexpr int pictures = 100;
        for (int i = 0; i < pictures; ++i) {
            QImage picture(200, 160, QImage::Format_RGB32);
            picture.fill(QColor::fromHsv(3 * i, 200, 200));
            picture.save(PictureAt(i));
        }
        CardSet set = Window.Works().Set;
        for (int i = 1; i < cards; ++i) {
            AddElement<Card>(set);
            Card& card = set.Cards[set.Cards.Count()];
            card.Picture = PictureAt(i % pictures);
            card.Artist = QStringLiteral("Ada Brushwood");
            card.Info = QStringLiteral("Roll one die: on a 1 it wakes and you must fight it at once.");
        }
        const QString path = Folder.filePath(QStringLiteral("set.dkf"));
        WriteSet(set, path, User);
        Window.Start(path);
        Window.show();
        Settle();
    }

    [[nodiscard]] QString PictureAt(int index) const
    {
        return Folder.filePath(QStringLiteral("%1.bmp").arg(index));
    }
    template <class Control>
    Control& Find(const char* name)
    {
        return *Window.findChild<Control*>(QString::fromLatin1(name));
    }
    void SelectTab(int tab)
    {
        Find<QTabBar>("tbCard").setCurrentIndex(tab - 1);
        Settle();
    }
    static void Settle() { QCoreApplication::processEvents(); }

    QTemporaryDir Folder;
    UserPort User;
    frmQDW Window{User};
};

void Press(QWidget& control, int key, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&control, &press);
    OpenWindow::Settle();
}

void KeyPress(benchmark::State& state, const char* name, int tab)
{
    OpenWindow open;
    open.SelectTab(tab);
    auto* control = &open.Find<QWidget>(name);
    if (const auto* list = qobject_cast<QComboBox*>(control))
        control = list->lineEdit();
    bool isTyped = false;
    MeasureBesideFrame(state, [&] {
        isTyped = !isTyped;
        if (isTyped)
            Press(*control, Qt::Key_A, QStringLiteral("a"));
        else
            Press(*control, Qt::Key_Backspace, {});
    });
}

/// Goes to the next card, whose picture is cached.
void NextCard(benchmark::State& state)
{
    OpenWindow open;
    auto& slider = open.Find<QScrollBar>("hsbCard");
    constexpr int shown = 100;
    const auto step = [&] {
        slider.setValue(slider.value() % shown + 1);
        OpenWindow::Settle();
    };
    for (int i = 0; i < shown; ++i)
        step();
    MeasureBesideFrame(state, step);
}

BENCHMARK_CAPTURE(KeyPress, txtTitle, "txtTitle", 1)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK_CAPTURE(KeyPress, cboType, "cboType", 1)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK_CAPTURE(KeyPress, cboNumber, "cboNumber", 1)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK_CAPTURE(KeyPress, txtBold, "txtBold", 1)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK_CAPTURE(KeyPress, txtInfo, "txtInfo", 1)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK_CAPTURE(KeyPress, txtArtist, "txtArtist", 1)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK_CAPTURE(KeyPress, txtSpecialAbilities, "txtSpecialAbilities", 3)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime();
BENCHMARK_CAPTURE(KeyPress, cboCharAttr0, "cboCharAttr0", 3)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK_CAPTURE(KeyPress, txtBackText, "txtBackText", 4)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK_CAPTURE(KeyPress, txtSetname, "txtSetname", 1)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(NextCard)->Unit(benchmark::kMicrosecond)->UseManualTime();

} // namespace

} // namespace deckforge
