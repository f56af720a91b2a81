// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/PlainTexts.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>

namespace deckforge {

namespace {

/// Labels, tool tips included, are polished before their first layout.
class PlainTextFilter final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const label = event->type() == QEvent::Polish ? qobject_cast<QLabel*>(watched) : nullptr;
        if (label && label->textFormat() == Qt::AutoText)
            label->setTextFormat(Qt::PlainText);
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void ShowTextsAsPlain(QObject& owner)
{
    qApp->installEventFilter(new PlainTextFilter(&owner));
}

} // namespace deckforge
