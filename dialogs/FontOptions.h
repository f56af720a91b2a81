// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Records.h"

#include <array>
#include <vector>

namespace deckforge {

/// A font that Change Fonts offers for a sample card.
struct FontOption {
    const char* Caption;
    FontSpec SetHeader::*Font;
};

/// A sample card with its fonts, in the order of their option buttons.
struct FontSample {
    const char* Caption; ///< of its tab
    std::vector<FontOption> Options;
};

/// The samples: a standard card, a large card, a character and a playing piece.
[[nodiscard]] const std::array<FontSample, 4>& FontSamples();

/// The font that an option changes; null for none.
///
/// Kept: the checked option may belong to another sample. The playing piece then has no font, and all other
/// samples change the font of the autonumber.
[[nodiscard]] FontSpec SetHeader::*FontToChange(int sample, int option);

} // namespace deckforge
