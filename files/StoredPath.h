// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace deckforge {

// Paths as set files have them: as they stand, but for those that no line of a set file can hold. The folders
// of a system have names in its user's language, and a set must not depend on that to be saved.

/// The path, or as an address in bytes of UTF-8, "file:///home/%D0%B8...", where it holds a character outside
/// the code page or a line break.
[[nodiscard]] QString StoredPath(const QString& path);

/// The path that is stored so. Any text that StoredPath does not give is a path as it stands.
[[nodiscard]] QString PathFromStored(const QString& text);

} // namespace deckforge
