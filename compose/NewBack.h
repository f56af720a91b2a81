// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

// A back that the user designs: a text on a picture, or on a template coloured by flood fill. It is designed
// in landscape format and used upright.

/// Draws the design on picNewBack and lays out its title. Failures are thrown, including a missing picture.
void ShowNewCardBack(Workshop& workshop, int16 index);

/// The same, and composes the back from the design and rotates it into picACard.
void DrawNewCardBack(Workshop& workshop, int16 index);

} // namespace deckforge
