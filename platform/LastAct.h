#pragma once

#include <QSocketNotifier>
#include <atomic>
#include <functional>

namespace deckforge {

/// What the program does before something ends it that asks nobody. While the object lives, the act runs
///
/// - in the event loop when the session ends the program (SIGTERM, SIGHUP, SIGINT),
/// - at exit(), which is how the drawing library takes the loss of an X display, and where it tells of the
/// loss
///   of a Wayland display,
/// - at a failure that nobody handles, at a crash, and where the event loop does not come to act in half a
///   minute, there as well as the state of the program allows.
///
/// It runs once; then the program ends as it would have without it. A program or an act that hangs is ended
/// all the same. Signals that were ignored or handled before stay so. There is one such object at a time.
class LastAct final {
public:
    explicit LastAct(std::function<void()> act);
    ~LastAct();
    LastAct(const LastAct&) = delete;
    LastAct& operator=(const LastAct&) = delete;

    void Perform(); ///< nothing at the second call

private:
    void EndBySignal();

    std::function<void()> m_act;
    std::atomic<bool> m_isDone = false;
    QSocketNotifier m_notifier;
};

} // namespace deckforge
