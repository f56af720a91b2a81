// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

/// Lays out the preview of the card, and composes the card on picACard. Missing files are reported on the
/// preview. Returns any other failure; picACard then still has the card before.
/// Kept: a card back that is not
/// in the table becomes row 1 in the record.
[[nodiscard]] CompositionFailure ShowCard(Workshop& workshop, int16 index);

/// Updates the positions of frame, picture and texts without loading the picture again.
void PlaceCardPicture(CardTemplate& t, const Card& card);

/// Replaces a back that is not in the table by row 1.
void ReplaceUnknownBack(const CardSet& set, Card& card);

/// The art of a built-in row of the table of backs, or the picture file of any other row.
[[nodiscard]] Picture PictureOfBack(const CardSet& set, int16 row, BuiltInArt& art, PictureLoader& pictures);

/// Sets the four captions of the type.
void ShowTypeNames(CardTemplate& card, const Card& record);

/// Sizes the bold line for its caption, and the information to the space below.
void PlaceBoldText(CardTemplate& card);

/// Moves the handle, and with it the lower edge of the frame and the texts below.
void PlaceHandle(CardTemplate& card, int top);

/// Shows or hides the picture with frame and handle; without them the texts use the space.
void ShowPictureFrame(CardTemplate& card, bool visible);

/// Draws the rotated credit of the artist over the background on the preview; hides it if the card has no
/// artist. `picArtist` is the credit before rotation.
void DrawArtistCredit(CardTemplate& t, PictureBox& picArtist, const Card& card, Colour colour);

/// "139W * 105H"
[[nodiscard]] QString FrameSizeText(const Box& frame);

} // namespace deckforge
