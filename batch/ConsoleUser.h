// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/UserPort.h"

namespace deckforge {

/// The user of a run without a window: message boxes are written to standard error as "TITLE: text",
/// questions are answered with No, and dialogs are cancelled. Problems are written there as well, one per
/// line. On a terminal long runs show their progress.
class ConsoleUser final : public UserPort {
public:
    Answer ShowMessage(const MessageBoxRequest& request) override;
    void ReportProblems(const QStringList& problems) override;
    void ShowProgress(int done, int total) override;

    /// Whether a critical message or a problem was reported.
    [[nodiscard]] bool HasReportedFailure() const { return m_hasReportedFailure; }

private:
    bool m_hasReportedFailure = false;
};

} // namespace deckforge
