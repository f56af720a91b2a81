// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/PictureBox.h"

namespace deckforge {

// Quarter turns. Text can only be printed upright, so vertical text is printed on a work surface and then
// rotated.

enum class Turn { Clockwise, CounterClockwise };

/// Rotates the source into the target, resizing it. The result becomes the target's picture.
void RotatePicture(const PictureBox& source, PictureBox& target, Turn turn);

/// The same, but a clockwise rotation ends two pixels further left, where user-designed backs are in their
/// frame. The two columns at the right keep the target's background.
void RotatePictureShifted(const PictureBox& source, PictureBox& target, Turn turn);

} // namespace deckforge
