#pragma once

#include "platform/UserPort.h"

#include <QAbstractButton>

namespace deckforge {

/// Connects a signal to a handler of a dialog. A failure that leaves the handler is told to the user, and the
/// dialog goes on: what calls the handlers cannot be left by an exception.
template <class Sender, class Signal, class Handler>
void OnSignal(UserPort& user, Sender* sender, Signal signal, QObject* dialog, Handler handler)
{
    QObject::connect(sender, signal, dialog, [&user, handler] {
        try {
            WithMemoryAsFailure(handler);
        } catch (const RunTimeError& error) {
            TellUntrapped(user, error);
        }
    });
}

/// The same for the click on a button.
template <class Handler>
void OnClick(UserPort& user, QAbstractButton* button, QObject* dialog, Handler handler)
{
    OnSignal(user, button, &QAbstractButton::clicked, dialog, handler);
}

} // namespace deckforge
