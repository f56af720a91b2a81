// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

// Placing the picture of the current card behind its frame. Each function changes the record, then the boxes
// of the preview.

enum class PlacedPicture { Standard, Large, Character, PlayingPiece };

/// Moves the picture by twips.
void MovePicture(Workshop& workshop, PlacedPicture which, double right, double down);

/// The arrow keys move the picture by a pixel; Home, End, Page Up and Page Down move it to the left, right,
/// upper and lower edge of its frame.
void MovePictureByKey(Workshop& workshop, PlacedPicture which, Qt::Key key);

/// Moves the handle by pixels within its range: down on the standard card, to the right on large cards and
/// characters. The frame ends at the handle, and the text begins there. A playing piece has no handle.
void MoveHandle(Workshop& workshop, PlacedPicture which, int pixels);

/// Up and Down move the handle of the standard card by a pixel, Home and End to the ends of its range.
void MoveHandleByKey(Workshop& workshop, Qt::Key key);

/// Centres the picture of the standard card horizontally.
void CentrePicture(Workshop& workshop);

} // namespace deckforge
