// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/CardTemplates.h"

namespace deckforge {

/// Sets font and text colour of a surface. Invalid names and sizes are ignored.
void UseFont(PictureBox& surface, const FontSpec& font);

/// Applies the thirteen fonts to the labels of all templates.
void SetFont(CardTemplates& templates, const SetHeader& header);

/// Applies the fonts of an opened set.
/// Kept: only to the labels of the standard card without lblType(2) and lblType(3). The other labels keep
/// their fonts until SetFont.
void ApplyOpenedSetFonts(CardTemplate& card, const SetHeader& header);

} // namespace deckforge
