// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

/// Lays out the previews of the character, and composes its card on picACard and its playing piece on
/// picACardPP. Returns a failure other than a missing file; the card is then not composed.
///
/// Kept: missing files are reported on the boxes of the standard card, which lose their pictures. The
/// character's own boxes keep theirs.
[[nodiscard]] CompositionFailure ShowCharacter(Workshop& workshop, int16 index);

/// Updates the positions of frame, picture and texts without loading the picture again.
void PlaceCharacterPicture(CharacterTemplate& t, const Character& character);

/// Updates the position of the playing piece's picture.
void PlacePlayingPiecePicture(PlayingPieceTemplate& t, const Character& character);

/// Moves the handle, and with it the right edge of the frame and the texts beside it.
void PlaceHandle(CharacterTemplate& t, int left);

/// Shows or hides frame and handle, and moves the texts beside them.
void ShowPictureFrame(CharacterTemplate& t, bool visible);

/// Draws an attribute (0 to 3: strength, craft, gold, lives) rotated into its strip of the preview: "CRAFT
/// 3", "CRAFT+1", or "CRAFT" for "---". `picCharAttribute` is the attribute before rotation.
void DrawCharAttribute(CharacterTemplate& t, PictureBox& picCharAttribute, int index, const QString& value);

/// "(100W*220H)"
[[nodiscard]] QString CharacterFrameSizeText(const Box& frame);

} // namespace deckforge
