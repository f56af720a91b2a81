// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/modInfo.h"

namespace deckforge {

/// A large card, a character and a card back beside the standard cards that every set has.
inline CardSet& AddOneOfEachKind(CardSet& set)
{
    AddElement<LargeCard>(set);
    AddElement<Character>(set);
    AddElement<NewCardBack>(set);
    return set;
}

} // namespace deckforge
