// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/BuiltInArt.h"
#include "compose/CardTemplates.h"
#include "core/CardSet.h"
#include "imaging/PictureLoader.h"
#include "platform/RunTimeError.h"

#include <optional>
#include <vector>

namespace deckforge {

/// The hidden surfaces on which cards are composed. What one composition leaves on them, fonts and colours
/// among it, is there for the next.
struct WorkSurfaces {
    explicit WorkSurfaces(int scale);

    PictureBox picACard;         ///< standard, large and character cards, and the turned new back
    PictureBox picACardPP;       ///< the playing piece and the new back
    Picture picWhite;            ///< all white; stretched over a frame it blanks it
    PictureBox picArtist;        ///< the artist's credit before it is turned, 180 x 5
    PictureBox picCharAttribute; ///< an attribute before it is turned, 52 x 12, black
    PictureBox picDone;       ///< the final picture of a card with its outline and back, or a sheet of cards
    PictureBox picLargeSheet; ///< the sheet of large cards being filled
    PictureBox picStore;      ///< a large card with its back below it
};

/// Font and colour that a composition leaves to the next one on the same surface.
///
/// Kept: the outline of a picture has the colour of the text printed before it, and the name on a playing
/// piece its font. Both come from the composition before.
struct CarriedPens {
    FontSpec Card;  ///< on picACard
    FontSpec Piece; ///< on picACardPP
};

/// Where a run of card sheets stands.
struct SheetState {
    int16 SheetCols = 0;
    int16 SheetRows = 0;
    int16 SheetCol = 0; ///< the cell of the card being placed, from 1
    int16 SheetRow = 0;
    bool SheetLast = false;    ///< set with the last copy of the last card, and never cleared again
    QString Unwritten;         ///< path of the sheet that has cards and is not written yet; empty for none
    int16 SheetCardHeight = 0; ///< of a cell, in pixels
    int16 SheetCardWidth = 0;
};

/// The failure that ended a composition; nothing if it was completed.
using CompositionFailure = std::optional<RunTimeError>;

/// A picture that a composition could not load, or another failure that ended it.
struct PictureProblem {
    QString Path; ///< empty where it is no picture that failed
    QString Reason;
};

/// What every operation works on, with or without a window: the set, its templates and surfaces, and the art.
///
/// With a scale of n all surfaces are n times as fine; the cards are the same.
struct Workshop {
    explicit Workshop(int scale = 1);

    CardSet Set;
    CardTemplates Templates;
    WorkSurfaces Surfaces;
    CarriedPens Carried;
    BuiltInArt Art;
    PictureLoader Pictures;
    SheetState Sheet;
    std::vector<PictureProblem> Problems; ///< of the card composed last
};

} // namespace deckforge
