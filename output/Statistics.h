// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

namespace deckforge {

/// The cards of the set by type and by back, each card once, and the totals of the other kinds. A card whose
/// back is not in the table is error 9.
[[nodiscard]] QString StatisticsText(const CardSet& set);

} // namespace deckforge
