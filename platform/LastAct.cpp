#include "platform/LastAct.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <fcntl.h>
#include <mutex>
#include <unistd.h>

namespace deckforge {

namespace {

constexpr std::array EndsFromOutside = {SIGTERM, SIGHUP, SIGINT};
constexpr std::array Crashes = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGALRM}; ///< or out of patience
constexpr int CrashFlags = SA_ONSTACK | SA_NODEFER; ///< another one ends an act that fails itself

// How long the program may take to act before it is ended without, in seconds.
constexpr unsigned int Patience = 30;     ///< for an end from outside, which the event loop answers
constexpr unsigned int CrashPatience = 5; ///< the act may wait there for what the crash interrupted

// Handlers of signals and of the end of the program take no arguments: what they work on stands here.
std::atomic<LastAct*> Current = nullptr;
std::atomic<bool> IsEnding = false;         ///< the session has asked once
std::terminate_handler Terminate = nullptr; ///< the usual one, which tells the failure
QtMessageHandler TellMessage = nullptr;     ///< the usual one
std::array<int, 2> WakePipe = {-1, -1}; ///< carries the number of a signal from its handler to the event loop

/// The act needs more room than a stack that has overflowed leaves.
alignas(std::max_align_t) std::array<char, 1 << 18> CrashStack;

int OpenWakePipe()
{
    if (WakePipe[0] < 0 && ::pipe2(WakePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("No pipe for signals");
    return WakePipe[0];
}

void PerformCurrent()
{
    if (LastAct* const act = Current.exchange(nullptr))
        act->Perform();
}

void EndAsUsual(int signal)
{
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

void OnEndFromOutside(int signal)
{
    const int before = errno;
    if (!IsEnding.exchange(true)) // asked again and again the program gets no more time
        ::alarm(Patience);
    const char number = static_cast<char>(signal);
    (void)!::write(WakePipe[1], &number, 1);
    errno = before;
}

/// Not everything that the act does is allowed in here, but there is nothing to lose any more.
void OnCrash(int signal)
{
    ::alarm(CrashPatience);
    PerformCurrent();
    EndAsUsual(signal);
}

void OnTerminate()
{
    PerformCurrent();
    Terminate();
}

/// The drawing library does not come to exit() when it loses a Wayland display; it says so just before, from
/// several threads, of which none may end the program under another that acts.
void OnMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    TellMessage(type, context, text);
    if (type != QtWarningMsg || !text.startsWith(QLatin1String("The Wayland connection")))
        return;
    static std::mutex acting;
    const std::lock_guard oneThread(acting);
    PerformCurrent();
}

/// Takes a signal that has its usual meaning; gives it back with SIG_DFL.
void Handle(int signal, void (*handler)(int), void (*instead)(int), int flags)
{
    struct sigaction action = {};
    ::sigaction(signal, nullptr, &action);
    if (action.sa_handler != instead)
        return;
    action = {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    ::sigaction(signal, &action, nullptr);
}

} // namespace

LastAct::LastAct(std::function<void()> act)
    : m_act(std::move(act)), m_notifier(OpenWakePipe(), QSocketNotifier::Read)
{
    Current = this;
    QObject::connect(&m_notifier, &QSocketNotifier::activated, [this] { EndBySignal(); });
    const stack_t stack = {.ss_sp = CrashStack.data(), .ss_flags = 0, .ss_size = CrashStack.size()};
    ::sigaltstack(&stack, nullptr);
    for (const int signal : EndsFromOutside)
        Handle(signal, OnEndFromOutside, SIG_DFL, SA_RESTART);
    for (const int signal : Crashes)
        Handle(signal, OnCrash, SIG_DFL, CrashFlags);
    Handle(SIGPIPE, SIG_IGN, SIG_DFL, 0); // a lost display or terminal is told by the calls on it
    Terminate = std::set_terminate(OnTerminate);
    TellMessage = qInstallMessageHandler(OnMessage);
    std::atexit(PerformCurrent);
}

LastAct::~LastAct()
{
    Current = nullptr;
    for (const int signal : EndsFromOutside)
        Handle(signal, SIG_DFL, OnEndFromOutside, 0);
    for (const int signal : Crashes)
        Handle(signal, SIG_DFL, OnCrash, 0);
    std::set_terminate(Terminate);
    qInstallMessageHandler(TellMessage);
}

void LastAct::Perform()
{
    if (!m_isDone.exchange(true))
        m_act();
}

void LastAct::EndBySignal()
{
    char signal = 0;
    if (::read(WakePipe[0], &signal, 1) != 1)
        return;
    ::alarm(Patience); // anew: coming here may have taken most of it
    Perform();
    EndAsUsual(signal);
}

} // namespace deckforge
