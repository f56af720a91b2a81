// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace deckforge {

/// Picture offsets are stored in twips, a twentieth of a point. A pixel is always 15 twips (96 pixels per
/// inch), whatever the screen, so that a set gives the same cards everywhere.
inline constexpr int TwipsPerPixelX = 15;
inline constexpr int TwipsPerPixelY = 15;

} // namespace deckforge
