// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "output/frmCardSheet.h"

class QWidget;

namespace deckforge {

/// Asks for the grid of a card sheet; nothing if cancelled.
[[nodiscard]] std::optional<SheetGrid> AskSheetGrid(bool noBack, QWidget* window);

/// "768 x 508": height and width of a sheet. Kept: with backs the width is too small.
[[nodiscard]] QString SheetSizeText(SheetGrid grid, bool noBack);

} // namespace deckforge
