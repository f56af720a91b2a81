// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <csignal>

namespace deckforge {

/// In its scope, signals have their default action, also in child processes, whatever
/// the caller of the tests ignores or blocks (nohup, a shell's trap).
class DefaultSignals {
public:
    DefaultSignals()
    {
        sigset_t none;
        sigemptyset(&none);
        ::pthread_sigmask(SIG_SETMASK, &none, &m_mask);
        for (std::size_t i = 0; i < Signals.size(); ++i)
            m_actions[i] = std::signal(Signals[i], SIG_DFL);
    }
    ~DefaultSignals()
    {
        for (std::size_t i = 0; i < Signals.size(); ++i)
            std::signal(Signals[i], m_actions[i]);
        ::pthread_sigmask(SIG_SETMASK, &m_mask, nullptr);
    }
    DefaultSignals(const DefaultSignals&) = delete;
    DefaultSignals& operator=(const DefaultSignals&) = delete;

private:
    static constexpr std::array Signals = {SIGHUP, SIGINT, SIGTERM, SIGALRM, SIGSEGV, SIGABRT};
    sigset_t m_mask = {};
    std::array<void (*)(int), Signals.size()> m_actions = {};
};

} // namespace deckforge
