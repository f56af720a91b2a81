// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/UserPort.h"

namespace deckforge {

/// Shows a message box without a question.
inline void ShowBox(UserPort& user, BoxStyle style, const char* title, const QString& text)
{
    user.ShowMessage({.Text = text, .Title = QString::fromLatin1(title), .Style = style});
}

} // namespace deckforge
