// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/UserPort.h"

namespace deckforge {

void ShowBox(UserPort& user, BoxStyle style, const QString& title, const QString& text)
{
    user.ShowMessage({.Text = text, .Title = title, .Style = style});
}

void ShowUnhandledError(UserPort& user, const RunTimeError& error)
{
    ShowBox(user, BoxStyle::Critical, "Varnhelm Deck Forge",
            QStringLiteral("Run-time error '%1':\r\n\r\n%2")
                .arg(static_cast<int>(error.Number()))
                .arg(error.Description()));
}

} // namespace deckforge
