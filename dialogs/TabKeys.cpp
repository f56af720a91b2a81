// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/TabKeys.h"

#include <QShortcut>
#include <QTabBar>

namespace deckforge {

void BindTabKeys(QTabBar& tabs)
{
    const auto onKey = [&tabs](const QKeySequence& key, int step) {
        QObject::connect(new QShortcut(key, tabs.window()), &QShortcut::activated, &tabs, [&tabs, step] {
            tabs.setCurrentIndex((tabs.currentIndex() + tabs.count() + step) % tabs.count());
        });
    };
    onKey(Qt::CTRL | Qt::Key_Tab, 1);
    onKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1);
}

} // namespace deckforge
