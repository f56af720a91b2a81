#pragma once

#include "core/modInfo.h"

namespace deckforge {

/// A large card, a character and a card back beside the standard cards that every set has.
inline void AddOneOfEachKind(CardSet& set)
{
    AddElement(set, LargeKind);
    AddElement(set, CharacterKind);
    AddElement(set, NewBackKind);
}

} // namespace deckforge
