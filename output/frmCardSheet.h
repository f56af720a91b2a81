// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "output/ImageNames.h"
#include "output/RunReport.h"

namespace deckforge {

// Card sheets: images with many cards in a grid, for printing. Each copy of a card takes a cell; a sheet is
// written when its grid is full, and when the last copy of the last card is placed.

/// What the user picks: 1 to 6 columns and 1 to 8 rows.
struct SheetGrid {
    int16 Cols = 2;
    int16 Rows = 3;

    static constexpr int16 MaxCols = 6;
    static constexpr int16 MaxRows = 8;
};

/// A run over all cards of a kind and their copies. Returns the number of sheets that they take.
///
/// The flag of the last card stays set when a run is over: another run of the same program writes at every
/// card, and each of its sheets ends up with its last card only. Characters are walked through and no file
/// results. Sheets that are counted but not written are reported.
int16 SaveSheets(Workshop& workshop, RunReport& report, CardKind kind, SheetGrid grid);

/// Places the composed card and its back on the sheet, and writes the sheet when that is due. A failure is
/// reported.
void SaveCardSheet(Workshop& workshop, RunReport& report, const FilePath& path);

/// The same for a large card, which stands above its back, though the cell is as wide as both. The clipboard
/// is given each card.
void SaveLargeCardSheet(Workshop& workshop, RunReport& report, const FilePath& path);

} // namespace deckforge
