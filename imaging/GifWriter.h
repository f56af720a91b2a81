// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <optional>

namespace deckforge {

/// Converts a BMP file to a GIF file with up to 256 colours chosen for the picture. Returns the reason of a
/// failure, or nothing on success.
[[nodiscard]] std::optional<QString> ConvertBmpToGif(const QString& bmpPath, const QString& gifPath);

} // namespace deckforge
