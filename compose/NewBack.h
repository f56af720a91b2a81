// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

// A back that the user designs: a text on a picture, or on a template that is coloured by flood fill.
// Designed lying on its side, used upright.

/// Builds the design on picNewBack and lays its title out. No failure is told or passed over here: a missing
/// picture is the caller's, and the remaining steps do not run.
void ShowNewCardBack(Workshop& workshop, int16 index);

/// Composes the back from the design, and turns it upright into picACard. Runs before an image is made.
void DrawNewCardBack(Workshop& workshop, int16 index);

} // namespace deckforge
