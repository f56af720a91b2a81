#pragma once

#include <QString>
#include <optional>

namespace deckforge {

/// Turns the BMP file at one path into a GIF file at another, with up to 256 colours chosen for the picture.
/// Gives the failure as a text, or nothing when the GIF is written.
[[nodiscard]] std::optional<QString> ConvertBmpToGif(const QString& bmpPath, const QString& gifPath);

} // namespace deckforge
