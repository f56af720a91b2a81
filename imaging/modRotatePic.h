#pragma once

#include "imaging/PictureBox.h"

namespace deckforge {

// Quarter turns: text can only be printed upright, so what stands sideways on a card is printed on a work
// surface and then turned.

enum class Turn { Clockwise, CounterClockwise };

/// Turns the source into the target, which takes the turned size. The result is the target's picture.
void RotatePicture(const PictureBox& source, PictureBox& target, Turn turn);

/// The same, but clockwise the picture lands two pixels to the left: user-designed backs lie so in their
/// frame. The two columns at the right keep the target's background.
void RotatePictureShifted(const PictureBox& source, PictureBox& target, Turn turn);

} // namespace deckforge
