// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

/// Lays the card out on the preview, and composes it. A card back past the table becomes row 1 in the record.
///
/// Missing files are reported on the preview. Any other failure is returned and leaves the routine before the
/// card is composed: the work surface keeps the card before it.
[[nodiscard]] CompositionFailure ShowCard(Workshop& workshop, int16 index);

/// Lays out again only the frame and what follows it; the picture is not loaded anew.
void PlaceCardPicture(Workshop& workshop, int16 index);

/// A back that is not in the table becomes the first, as showing the card does it.
void ReplaceUnknownBack(const CardSet& set, Card& card);

/// The art of a built-in row of the table of backs, or the picture that the row names. A failure is thrown.
[[nodiscard]] Picture PictureOfBack(Workshop& workshop, int16 row);

/// Puts the four parts of the type on their labels.
void ShowTypeNames(CardTemplate& card, const Card& record);

/// Gives the bold line the height its caption needs, and the information what is left below it.
void PlaceBoldText(CardTemplate& card);

/// Ends the frame where its handle now is, and moves the texts below it.
void PlaceHandle(CardTemplate& card, int top);

/// Shows or hides the picture with its frame and handle; the texts move up to where the frame was.
void ShowPictureFrame(CardTemplate& card, bool visible);

/// Draws the credit of the card on its side on the preview, over the card's own background; hides it when the
/// card has no artist.
void DrawArtistCredit(Workshop& workshop, int16 index);

/// "139W * 105H": the frame's size.
[[nodiscard]] QString FrameSizeText(const Box& frame);

} // namespace deckforge
