// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

// How the user places the picture of the current card behind its frame. Every gesture changes the record, and
// then the boxes of the preview.

enum class PlacedPicture { Standard, Large, Character, PlayingPiece };

/// Moves the picture by twips, to the right and down.
void MovePicture(Workshop& workshop, PlacedPicture which, double right, double down);

/// The arrows move the picture by a pixel; Home, End, Page Up and Page Down lay it at the left, right, upper
/// and lower edge of its frame. Any other key only lays the picture out again.
void MovePictureByKey(Workshop& workshop, PlacedPicture which, Qt::Key key);

/// Moves the handle by pixels, down on the standard card and to the right on the others, as far as the card
/// has room for it. The frame ends at the handle, and the text begins there. The playing piece has none.
void MoveHandle(Workshop& workshop, PlacedPicture which, int pixels);

/// Up and Down move the handle of the standard card by a pixel, Home and End as far as it goes. Any other key
/// only lays the text out again.
void MoveHandleByKey(Workshop& workshop, Qt::Key key);

/// Lays the picture of the current standard card in the middle of the card's width.
void CentrePicture(Workshop& workshop);

} // namespace deckforge
