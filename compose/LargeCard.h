// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

/// Lays out the preview of the large card, and composes the card on picACard. Returns a failure other than a
/// missing file; the card is then not composed.
///
/// Kept: missing files are reported on the boxes of the standard card, which lose their pictures. The large
/// card's own boxes keep theirs.
[[nodiscard]] CompositionFailure ShowLargeCard(Workshop& workshop, int16 index);

/// Updates the positions of frame and picture without loading the picture again.
void PlaceLargePicture(LargeCardTemplate& t, const LargeCard& card);

/// Moves the handle, and with it the right edge of the frame and the texts beside it.
void PlaceHandle(LargeCardTemplate& t, int left);

/// Shows or hides the picture with frame and handle; without them the texts use the space.
void ShowPictureFrame(LargeCardTemplate& t, bool visible);

} // namespace deckforge
