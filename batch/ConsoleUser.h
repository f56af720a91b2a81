#pragma once

#include "platform/SilentUser.h"

namespace deckforge {

/// The user of a run without a window: boxes go to standard error as "TITLE: text", questions are answered
/// with No, dialogs with a cancel. Problems go there, too, a line each. On a terminal a long run shows how
/// far it is.
class ConsoleUser final : public SilentUser {
public:
    Answer ShowMessage(const MessageBoxRequest& request) override;
    void ReportProblems(const QStringList& problems) override;
    void ShowProgress(int done, int total) override;

    /// Whether a critical box was shown or a problem reported.
    [[nodiscard]] bool WasToldOfFailure() const { return m_toldOfFailure; }

private:
    bool m_toldOfFailure = false;
};

} // namespace deckforge
