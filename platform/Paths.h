// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace deckforge {

// Paths are kept as the system that wrote them did, so both "\" and "/" are separators.

/// The part after the last separator, or the whole path if there is none.
[[nodiscard]] QString NamePart(const QString& path);

/// The part up to and including the last separator; empty if there is none.
[[nodiscard]] QString FolderPart(const QString& path);

[[nodiscard]] bool HoldsSeparator(const QString& text);

/// The folder with a trailing separator.
[[nodiscard]] QString WithSeparator(const QString& folder);

/// The path with "/" in place of "\".
[[nodiscard]] QString PathToOpen(QString path);

/// "Varnhelm Deck Forge" in the user's documents folder, with a trailing separator. Created on first use; if
/// that fails, the first write into it does.
[[nodiscard]] QString ProgramFolder();

} // namespace deckforge
