// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/TerminationGuard.h"

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

constexpr std::array TerminationSignals = {SIGTERM, SIGHUP, SIGINT};
constexpr std::array Crashes = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGALRM}; ///< SIGALRM: timed out
constexpr int CrashFlags = SA_ONSTACK | SA_NODEFER; ///< allows a second crash, in the callback, to terminate

// Time limits for the callback, in seconds.
constexpr unsigned int TerminationTimeout = 30; ///< after a signal that the event loop handles
constexpr unsigned int CrashTimeout = 5;        ///< the callback may wait for a lock held by the crashed code

// Signal and exit handlers take no arguments, so their state is global.
std::atomic<TerminationGuard*> Current = nullptr;
std::atomic<bool> IsTerminating = false;            ///< a termination signal has arrived
std::terminate_handler PreviousTerminate = nullptr; ///< prints the exception
QtMessageHandler PreviousMessageHandler = nullptr;  ///< installed before
std::array<int, 2> WakePipe = {-1,
                               -1}; ///< carries the signal number from the signal handler to the event loop

/// Alternate signal stack, for stack overflows.
alignas(std::max_align_t) std::array<char, 1 << 18> CrashStack;

int OpenWakePipe()
{
    if (WakePipe[0] < 0 && ::pipe2(WakePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("No pipe for signals");
    return WakePipe[0];
}

void RunCurrent()
{
    if (TerminationGuard* const guard = Current.exchange(nullptr))
        guard->Run();
}

void RaiseDefault(int signal)
{
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

void OnTerminationSignal(int signal)
{
    const int before = errno;
    if (!IsTerminating.exchange(true)) // repeated signals do not extend the time
        ::alarm(TerminationTimeout);
    const char number = static_cast<char>(signal);
    (void)!::write(WakePipe[1], &number, 1);
    errno = before;
}

/// Not async-signal-safe, but there is nothing to lose.
void OnCrash(int signal)
{
    ::alarm(CrashTimeout);
    RunCurrent();
    RaiseDefault(signal);
}

void OnTerminate()
{
    RunCurrent();
    PreviousTerminate();
}

/// When Qt loses a Wayland display it does not call exit(). It logs the loss first, from several threads; the
/// mutex keeps one from ending the process while another runs the callback.
void OnMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    PreviousMessageHandler(type, context, text);
    if (type != QtWarningMsg || !text.startsWith(QLatin1String("The Wayland connection")))
        return;
    static std::mutex running;
    const std::lock_guard lock(running);
    RunCurrent();
}

/// Replaces a handler only if it is `instead`.
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

TerminationGuard::TerminationGuard(std::function<void()> callback)
    : m_callback(std::move(callback)), m_notifier(OpenWakePipe(), QSocketNotifier::Read)
{
    Current = this;
    QObject::connect(&m_notifier, &QSocketNotifier::activated, [this] { HandleSignal(); });
    const stack_t stack = {.ss_sp = CrashStack.data(), .ss_flags = 0, .ss_size = CrashStack.size()};
    ::sigaltstack(&stack, nullptr);
    for (const int signal : TerminationSignals)
        Handle(signal, OnTerminationSignal, SIG_DFL, SA_RESTART);
    for (const int signal : Crashes)
        Handle(signal, OnCrash, SIG_DFL, CrashFlags);
    Handle(SIGPIPE, SIG_IGN, SIG_DFL, 0); // report a lost display or terminal as failed calls
    PreviousTerminate = std::set_terminate(OnTerminate);
    PreviousMessageHandler = qInstallMessageHandler(OnMessage);
    std::atexit(RunCurrent);
}

TerminationGuard::~TerminationGuard()
{
    Current = nullptr;
    for (const int signal : TerminationSignals)
        Handle(signal, SIG_DFL, OnTerminationSignal, 0);
    for (const int signal : Crashes)
        Handle(signal, SIG_DFL, OnCrash, 0);
    std::set_terminate(PreviousTerminate);
    qInstallMessageHandler(PreviousMessageHandler);
}

void TerminationGuard::Run()
{
    if (!m_isDone.exchange(true))
        m_callback();
}

void TerminationGuard::HandleSignal()
{
    char signal = 0;
    if (::read(WakePipe[0], &signal, 1) != 1)
        return;
    ::alarm(TerminationTimeout); // restart: waiting for the event loop may have used most of it
    Run();
    RaiseDefault(signal);
}

} // namespace deckforge
