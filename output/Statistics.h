// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

namespace deckforge {

/// Counts the cards of the set by type and by back, without copies, and the cards of the other kinds. Error 9
/// if a card's back is not in the table.
[[nodiscard]] QString StatisticsText(const CardSet& set);

} // namespace deckforge
