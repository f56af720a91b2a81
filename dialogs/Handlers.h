#pragma once

#include "platform/UserPort.h"

#include <QAbstractButton>
#include <type_traits>

namespace deckforge {

/// Runs a handler of the window or of a dialog. A failure that leaves it is reported and the program goes on:
/// Qt, which calls the handlers, cannot be left by an exception.
template <class Work>
void Guarded(UserPort& user, Work&& work)
{
    try {
        WithMemoryAsFailure(work);
    } catch (const RunTimeError& error) {
        TellUntrapped(user, error);
    }
}

/// Connects a signal to a guarded handler, which gets what the signal carries if it takes that.
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

/// The same for the click on a button.
template <class Handler>
void OnClick(UserPort& user, QAbstractButton* button, QObject* receiver, Handler handler)
{
    OnSignal(user, button, &QAbstractButton::clicked, receiver, handler);
}

} // namespace deckforge
