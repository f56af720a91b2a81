// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

/// Lays the large card out on its preview, and composes it on picACard.
///
/// Missing files are reported on the boxes of the standard card, which also lose their pictures; the large
/// card's own boxes keep what they showed. Any other failure is returned and leaves the routine before the
/// card is composed.
[[nodiscard]] CompositionFailure ShowLargeCard(Workshop& workshop, int16 index);

/// Lays out again only the frame; the picture is not loaded anew.
void PlaceLargePicture(Workshop& workshop, int16 index);

/// Ends the frame where its handle now is, and lays the texts out beside it.
void PlaceHandle(LargeCardTemplate& t, int left);

/// Shows or hides the picture with its frame and handle; without them the texts take their room.
void ShowPictureFrame(LargeCardTemplate& t, bool visible);

} // namespace deckforge
