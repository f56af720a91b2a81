#pragma once

#include <QString>

namespace deckforge {

// A path is kept as the user's system writes it. "\" and "/" both separate when it is taken apart.

/// What stands behind the last separator; the whole text when there is none.
[[nodiscard]] QString NamePart(const QString& path);

/// What stands up to the last separator, with it; empty when there is none.
[[nodiscard]] QString FolderPart(const QString& path);

[[nodiscard]] bool HoldsSeparator(const QString& text);

/// The folder with this system's separator behind it, or as it stands when it ends in one.
[[nodiscard]] QString WithSeparator(const QString& folder);

/// The path as this system opens it: "\" is taken for "/".
[[nodiscard]] QString PathToOpen(QString path);

/// "Varnhelm Deck Forge" in the user's documents folder, with a separator behind it. Made at the first use;
/// where that fails, the first write into it tells so.
[[nodiscard]] QString ProgramFolder();

} // namespace deckforge
