// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/CardTemplates.h"
#include "core/Records.h"

#include <vector>

namespace deckforge {

/// Dresses a work surface in a font of the scheme, colour included. A value that no font can have is passed
/// over, and the surface keeps what it had of it.
void UseFont(PictureBox& surface, const FontSpec& font);

/// How many clicks on a label open the font dialog.
enum class FontClicks { None, One, Two };

/// A label with the font of the set that it is dressed in.
struct LabelFont {
    Box* Label;
    FontSpec SetHeader::*Font;
    FontClicks Clicks;
};

/// The labels of all templates that have a font of the scheme. Those of the standard card ask for two clicks.
[[nodiscard]] std::vector<LabelFont> LabelFonts(CardTemplates& templates);

/// Dresses all labels of the previews from the thirteen fonts.
void SetFont(CardTemplates& templates, const SetHeader& header);

/// What an opened set dresses: the labels of the standard card, but lblType(2) and lblType(3), which keep
/// their fonts until SetFont.
void ApplyOpenedSetFonts(CardTemplate& card, const SetHeader& header);

} // namespace deckforge
