#pragma once

#include "output/frmCardSheet.h"

class QWidget;

namespace deckforge {

/// Asks for the grid of a card sheet in a dialog over the window; nothing on a cancel.
[[nodiscard]] std::optional<SheetGrid> AskSheetGrid(bool noBack, QWidget* window);

/// "768 x 508": the height of a sheet, then its width. A card with its back is told narrower than it is.
[[nodiscard]] QString SheetSizeText(SheetGrid grid, bool noBack);

} // namespace deckforge
