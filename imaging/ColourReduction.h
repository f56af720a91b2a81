// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>

namespace deckforge {

/// Whether missing colours are approximated by a pattern of others.
enum class Dither { No, Yes };

/// Converts the picture to a palette of at most `colours` colours, 2 to 256, chosen for it.
[[nodiscard]] QImage WithColours(const QImage& picture, int colours, Dither dither);

} // namespace deckforge
