#pragma once

#include <cstdint>

namespace deckforge {

/// The integers of a set: counts and indices have 16 bits, colours have 32.
using int16 = std::int16_t;
using int32 = std::int32_t;

/// A colour in the form 0x00BBGGRR.
using Colour = int32;

inline constexpr Colour Black = 0x000000;
inline constexpr Colour White = 0xFFFFFF;
inline constexpr Colour LightGrey = 0xC0C0C0;
inline constexpr Colour InvalidColour = -1; ///< what a pixel outside a surface gives

} // namespace deckforge
