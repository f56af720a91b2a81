#pragma once

#include "core/Records.h"

#include <array>
#include <vector>

namespace deckforge {

/// A font that the dialog of fonts offers for a sample card.
struct FontOption {
    const char* Caption;
    FontSpec SetHeader::*Font;
};

/// A sample card with its fonts in the order of their options.
struct FontSample {
    const char* Caption; ///< of its tab
    std::vector<FontOption> Options;
};

/// A standard card, a large card, a character and a playing piece.
[[nodiscard]] const std::array<FontSample, 4>& FontSamples();

/// The font to change while an option is on; null for none. The option may be one that the sample does not
/// show, still on from another sample: that of the playing piece then has no font, and all others have the
/// autonumber's.
[[nodiscard]] FontSpec SetHeader::*FontToChange(int sample, int option);

} // namespace deckforge
