// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/modInfo.h"

namespace deckforge {

/// Adds a large card, a character and a card back to the standard card of a new set.
inline CardSet& AddOneOfEachKind(CardSet& set)
{
    AddElement<LargeCard>(set);
    AddElement<Character>(set);
    AddElement<NewCardBack>(set);
    return set;
}

} // namespace deckforge
