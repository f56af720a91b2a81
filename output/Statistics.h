#pragma once

#include "core/CardSet.h"
#include "platform/UserPort.h"

namespace deckforge {

/// The cards of the set by type and by back, each card once, and the totals of the other kinds. A card whose
/// back is not in the table is error 9.
[[nodiscard]] QString StatisticsText(const CardSet& set);

/// Shows them in a box.
void Statistics(const CardSet& set, UserPort& user);

} // namespace deckforge
