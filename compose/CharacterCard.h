// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

/// Lays the character out on its previews, and composes its card on picACard and its playing piece on
/// picACardPP.
///
/// Missing files are reported on the boxes of the standard card, which also lose their pictures; the
/// character's own boxes keep what they showed. Any other failure is returned and leaves the routine before
/// the card is composed.
[[nodiscard]] CompositionFailure ShowCharacter(Workshop& workshop, int16 index);

/// Lays out again the frame and the text beside it; the picture is not loaded anew.
void PlaceCharacterPicture(Workshop& workshop, int16 index);

/// Lays out again only the picture of the playing piece.
void PlacePlayingPiecePicture(Workshop& workshop, int16 index);

/// Ends the frame where its handle now is, and lays the text out beside it.
void PlaceHandle(CharacterTemplate& t, int left);

/// Shows or hides frame and handle, and lays the text beside them out.
void ShowPictureFrame(CharacterTemplate& t, bool visible);

/// Draws one attribute, from 0 strength, craft, gold, lives, on its side into its strip of the preview. "---"
/// gives the word alone; a value without "+" is set off by a blank.
void DrawCharAttribute(Workshop& workshop, int index, const QString& value);

/// "(100W*220H)": the frame's size.
[[nodiscard]] QString CharacterFrameSizeText(const Box& frame);

} // namespace deckforge
