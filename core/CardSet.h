#pragma once

#include "core/CardList.h"
#include "core/Records.h"

namespace deckforge {

/// The one card set that a run of the program holds.
///
/// The two tables of vocabulary hold the built-in rows and behind them the set's own. There is at least one
/// standard card, and Cards.Current is one of them; of the other kinds there may be none, and their current
/// index is then 0.
struct CardSet {
    SetHeader Header;
    OneBasedArray<CardType> CardTypes;
    OneBasedArray<CardBack> CardBacks;

    // What a new card takes.
    QString LastType;
    QString LastTypeReversed;
    QString LastSubType;
    QString LastSubTypeReversed;
    int16 LastNumber = 0;
    int16 LastCardBack = 0;
    QString LastBackground;

    CardList<Card> Cards;
    CardList<LargeCard> LargeCards;
    CardList<Character> Characters;
    CardList<NewCardBack> NewCardBacks;
};

} // namespace deckforge
