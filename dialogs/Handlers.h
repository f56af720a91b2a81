// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/UserPort.h"

#include <QAbstractButton>
#include <type_traits>

namespace deckforge {

/// Runs a handler of the window or of a dialog, and reports its failure: exceptions must not pass through Qt.
template <class Work>
void Guarded(UserPort& user, Work&& work)
{
    try {
        WithMemoryAsFailure(work);
    } catch (const RunTimeError& error) {
        ShowUnhandledError(user, error);
    }
}

/// Connects a signal to a guarded handler, which takes either all arguments of the signal or none.
template <class Sender, class Signal, class Handler>
void OnSignal(UserPort& user, Sender* sender, Signal signal, QObject* receiver, Handler handler)
{
    QObject::connect(sender, signal, receiver, [&user, handler]([[maybe_unused]] auto&&... carried) {
        Guarded(user, [&] {
            if constexpr (std::is_invocable_v<Handler>)
                handler();
            else
                handler(carried...);
        });
    });
}

/// The same for a click on a button.
template <class Handler>
void OnClick(UserPort& user, QAbstractButton* button, QObject* receiver, Handler handler)
{
    OnSignal(user, button, &QAbstractButton::clicked, receiver, handler);
}

} // namespace deckforge
