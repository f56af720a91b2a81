#pragma once

#include <QImage>

namespace deckforge {

/// Whether colours that are left out are imitated by a pattern of others.
enum class Dither { No, Yes };

/// The picture with a palette of at most so many colours, 2 to 256, chosen for it.
[[nodiscard]] QImage WithColours(const QImage& picture, int colours, Dither dither);

} // namespace deckforge
