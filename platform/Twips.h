#pragma once

namespace deckforge {

/// Stored offsets of pictures are in twips, a twentieth of a point. The screen has 15 of them to a pixel,
/// that is 96 pixels to the inch, whatever the screen at hand: the same set gives the same cards everywhere.
inline constexpr int TwipsPerPixelX = 15;
inline constexpr int TwipsPerPixelY = 15;

} // namespace deckforge
