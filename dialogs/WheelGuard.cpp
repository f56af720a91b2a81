// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QTabBar>

namespace deckforge {

namespace {

class WheelGuard final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const control = static_cast<QWidget*>(watched);
        const bool isTab = qobject_cast<QTabBar*>(watched);
        if (event->type() != QEvent::Wheel || (control->hasFocus() && !isTab))
            return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }
};

} // namespace

void GuardFromWheel(QWidget& window)
{
    auto* const guard = new WheelGuard(&window);
    for (QWidget* control : window.findChildren<QWidget*>()) {
        const bool isBox = qobject_cast<QComboBox*>(control) || qobject_cast<QAbstractSpinBox*>(control);
        if (isBox) // or the wheel itself would give it the focus
            control->setFocusPolicy(Qt::StrongFocus);
        if (isBox || qobject_cast<QTabBar*>(control))
            control->installEventFilter(guard);
    }
}

} // namespace deckforge
