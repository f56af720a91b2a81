// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "output/ImageNames.h"
#include "output/RunReport.h"

namespace deckforge {

// Card sheets: images with many cards in a grid, for printing. Each copy of a card has a cell. A sheet is
// written when its grid is full, and after the last copy of the last card.

/// The grid chosen by the user, at least 1 x 1.
struct SheetGrid {
    int16 Cols = 2;
    int16 Rows = 3;

    static constexpr int16 MaxCols = 6;
    static constexpr int16 MaxRows = 8;
};

/// Creates the sheets of all cards of a kind and their copies. Returns the number of sheets; those that were
/// not written are reported.
///
/// Kept: SheetState::SheetLast stays set after the run. The next run writes its sheet after every card, so
/// each sheet contains its last card only.
/// Kept: sheets of characters are counted, but no file is written.
int16 SaveSheets(Workshop& workshop, RunReport& report, CardKind kind, SheetGrid grid);

/// Places the composed card and its back on the sheet, and writes the sheet if it is due. A failure is
/// reported.
///
/// Kept: a large card is above its back although the cell is as wide as both, and each large card is copied
/// to the clipboard.
void PlaceOnSheet(Workshop& workshop, RunReport& report, CardKind kind, const FilePath& path);

} // namespace deckforge
