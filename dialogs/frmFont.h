// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/UserPort.h"

class QWidget;

namespace deckforge {

/// Lets the user choose a font with its size, style and colour; nothing if cancelled. A font that is not
/// installed stays selectable by its name. `user` asks for the colour.
[[nodiscard]] std::optional<FontSpec> ChooseFontInDialog(const QString& title, const FontSpec& font,
                                                         UserPort& user, QWidget* window);

} // namespace deckforge
