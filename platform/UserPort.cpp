// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/UserPort.h"

namespace deckforge {

void ShowUnhandledError(UserPort& user, const RunTimeError& error)
{
    user.ShowMessage({.Text = QStringLiteral("Run-time error '%1':\r\n\r\n%2")
                                  .arg(static_cast<int>(error.Number()))
                                  .arg(error.Description()),
                      .Title = QStringLiteral("Varnhelm Deck Forge"),
                      .Style = BoxStyle::Critical});
}

} // namespace deckforge
