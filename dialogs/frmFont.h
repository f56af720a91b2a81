#pragma once

#include "platform/UserPort.h"

class QWidget;

namespace deckforge {

/// Lets the user choose a font with its size, style and colour in a dialog over the window; nothing on a
/// cancel. A font that this machine lacks stays in the list under its name. The user is asked for the colour.
[[nodiscard]] std::optional<FontSpec> ChooseFontInDialog(const QString& title, const FontSpec& font,
                                                         UserPort& user, QWidget* window);

} // namespace deckforge
