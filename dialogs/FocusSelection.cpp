// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/FocusSelection.h"

#include <QLineEdit>
#include <QTimer>

namespace deckforge {

void SelectAllOnFocus(QLineEdit& box, Qt::FocusReason reason)
{
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return;
    // After the click that gave the focus has placed the cursor.
    QTimer::singleShot(0, &box, [&box] {
        if (box.hasFocus())
            box.selectAll();
    });
}

} // namespace deckforge
