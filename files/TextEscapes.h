// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace deckforge {

// Texts in set files, whose code page has only Western European letters.

/// The text with "\u{141}" for each character that the code page does not have, for line breaks, and for
/// "\u{" itself.
[[nodiscard]] QString Escaped(const QString& text);

/// The text of an escaped one. What is no complete escape stays as it is.
[[nodiscard]] QString Unescaped(const QString& text);

} // namespace deckforge
