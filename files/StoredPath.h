// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace deckforge {

// Paths in set files. A set must be savable whatever the language of the user's folder names is.

/// The path itself, or if it has a line break or a character outside the code page, a URL in UTF-8,
/// "file:///home/%D0%B8...".
[[nodiscard]] QString StoredPath(const QString& path);

/// The path of a stored text. A text that StoredPath cannot return is a path itself.
[[nodiscard]] QString PathFromStored(const QString& text);

} // namespace deckforge
