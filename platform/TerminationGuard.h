// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSocketNotifier>
#include <atomic>
#include <functional>

namespace deckforge {

/// Runs a callback before the process is terminated involuntarily:
///
/// - by SIGTERM, SIGHUP or SIGINT, in the event loop,
/// - by exit(), which Qt calls when it loses an X display, or when Qt logs the loss of a Wayland display,
/// - by std::terminate or a crash, or if the event loop does not handle a signal within half a minute; then
/// as
///   far as the state of the process allows.
///
/// The callback runs once; then the process terminates as it would have without it, even if the callback
/// hangs. Signals that were ignored or handled before are left alone. Only one such object may exist at a
/// time.
class TerminationGuard final {
public:
    explicit TerminationGuard(std::function<void()> callback);
    ~TerminationGuard();
    TerminationGuard(const TerminationGuard&) = delete;
    TerminationGuard& operator=(const TerminationGuard&) = delete;

    void Run(); ///< does nothing when called again

private:
    void HandleSignal();

    std::function<void()> m_callback;
    std::atomic<bool> m_isDone = false;
    QSocketNotifier m_notifier;
};

} // namespace deckforge
