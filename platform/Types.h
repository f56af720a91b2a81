// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace deckforge {

/// Integers of a set: counts and indices have 16 bits, colours 32.
using int16 = std::int16_t;
using int32 = std::int32_t;

/// 0x00BBGGRR.
using Colour = int32;

inline constexpr Colour Black = 0x000000;
inline constexpr Colour White = 0xFFFFFF;
inline constexpr Colour LightGrey = 0xC0C0C0;
inline constexpr Colour InvalidColour = -1; ///< result of GetPixel() outside a surface

} // namespace deckforge
