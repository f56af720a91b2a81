#include "dialogs/FocusSelection.h"

#include <QLineEdit>
#include <QTimer>

namespace deckforge {

void SelectAllOnFocus(QLineEdit& box, Qt::FocusReason reason)
{
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return;
    // Once the click that gave the keyboard has placed its cursor.
    QTimer::singleShot(0, &box, [&box] {
        if (box.hasFocus())
            box.selectAll();
    });
}

} // namespace deckforge
