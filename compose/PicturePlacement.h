// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/CardTemplates.h"
#include "core/CardSet.h"

namespace deckforge {

// Placing the picture of the current card behind its frame. Each function changes the record, then the boxes
// of the preview.

enum class PlacedPicture { Standard, Large, Character, PlayingPiece };

/// Moves the picture by twips.
void MovePicture(CardTemplates& t, CardSet& set, PlacedPicture which, double right, double down);

/// The arrow keys move the picture by a pixel; Home, End, Page Up and Page Down move it to the left, right,
/// upper and lower edge of its frame.
void MovePictureByKey(CardTemplates& t, CardSet& set, PlacedPicture which, Qt::Key key);

/// Moves the handle by pixels within its range: down on the standard card, to the right on large cards and
/// characters. The frame ends at the handle, and the text begins there. A playing piece has no handle.
void MoveHandle(CardTemplates& t, CardSet& set, PlacedPicture which, int pixels);

/// Up and Down move the handle of the standard card by a pixel, Home and End to the ends of its range.
void MoveHandleByKey(CardTemplate& t, Card& card, Qt::Key key);

/// Centres the picture of the standard card horizontally.
void CentrePicture(const CardTemplate& t, Card& card);

} // namespace deckforge
