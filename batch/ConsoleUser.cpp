// SPDX-License-Identifier: GPL-3.0-or-later

#include "batch/ConsoleUser.h"

#include <cstdio>
#include <unistd.h>

namespace deckforge {

Answer ConsoleUser::ShowMessage(const MessageBoxRequest& request)
{
    if (request.Style == BoxStyle::Critical)
        m_hasReportedFailure = true;
    QString text = request.Text;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(request.Title), qUtf8Printable(text));
    return request.Buttons == BoxButtons::Ok ? deckforge::Answer::Ok : deckforge::Answer::No;
}

void ConsoleUser::ReportProblems(const QStringList& problems)
{
    for (const QString& problem : problems) {
        m_hasReportedFailure = true;
        std::fprintf(stderr, "%s\n", qUtf8Printable(problem));
    }
}

void ConsoleUser::ShowProgress(int done, int total)
{
    if (isatty(STDERR_FILENO) == 0)
        return;
    std::fprintf(stderr, "\r%d of %d%s", done, total, done == total ? "\n" : "");
}

} // namespace deckforge
