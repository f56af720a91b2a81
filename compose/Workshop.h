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

/// The hidden surfaces on which cards are composed. Fonts and colours persist from one composition to the
/// next.
struct WorkSurfaces {
    explicit WorkSurfaces(int scale);

    PictureBox picACard;         ///< standard, large and character cards, and the rotated new back
    PictureBox picACardPP;       ///< the playing piece and the new back
    Picture picWhite;            ///< white, for filling a frame
    PictureBox picArtist;        ///< the artist's credit before rotation, 180 x 5
    PictureBox picCharAttribute; ///< an attribute before rotation, 52 x 12, black
    PictureBox picDone;          ///< a card with its outline and back, or a sheet of cards
    PictureBox picLargeSheet;    ///< the sheet of large cards being filled
    PictureBox picStore;         ///< a large card with its back below it
};

/// Font and colour that a composition leaves for the next one on the same surface.
///
/// Kept: the outline of a picture has the colour, and the name on a playing piece the font, of the text
/// printed last by the composition before.
struct CarriedPens {
    FontSpec Card;  ///< on picACard
    FontSpec Piece; ///< on picACardPP
};

/// The state of a run of card sheets.
struct SheetState {
    int16 SheetCols = 0;
    int16 SheetRows = 0;
    int16 SheetCol = 0; ///< the cell of the card being placed, from 1
    int16 SheetRow = 0;
    bool SheetLast = false;    ///< Kept: set at the last copy of the last card and never cleared
    QString Unwritten;         ///< path of a sheet with cards that is not written yet; empty if none
    int16 SheetCardHeight = 0; ///< of a cell, in pixels
    int16 SheetCardWidth = 0;
};

/// The failure that ended a composition; nothing if it was completed.
using CompositionFailure = std::optional<RunTimeError>;

/// A picture that a composition could not load, or another failure that ended it.
struct PictureProblem {
    QString Path; ///< empty for other failures
    QString Reason;
};

/// The set with its templates, surfaces, art and pictures, with or without a window. Scale is the number of
/// physical pixels per pixel of the surfaces; art and pictures are loaded for previews of the fineness as
/// well.
struct Workshop {
    explicit Workshop(int scale = 1, int fineness = 1);

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
