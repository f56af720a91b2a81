#pragma once

#include "core/OneBasedArray.h"
#include "core/Records.h"

namespace deckforge {

/// The one card set that a run of the program holds.
///
/// The two tables of vocabulary hold the built-in rows and behind them the set's own. There is at least one
/// standard card, and CurrentCard is one of them; of the other kinds there may be none, and their current
/// index is then 0.
struct CardSet {
    SetHeader Header;

    int16 CardTypeCount = 0;
    OneBasedArray<CardType> CardTypes;

    // What a new card takes.
    QString LastType;
    QString LastTypeReversed;
    QString LastSubType;
    QString LastSubTypeReversed;
    int16 LastNumber = 0;

    int16 CardBackCount = 0;
    OneBasedArray<CardBack> CardBacks;
    int16 LastCardBack = 0;
    QString LastBackground;

    int16 CardCount = 0;
    int16 CurrentCard = 0;
    OneBasedArray<Card> Cards;
    Card ClipCard; ///< the copied card; the other kinds have theirs

    int16 LargeCardCount = 0;
    int16 CurrentLargeCard = 0;
    OneBasedArray<LargeCard> LargeCards;
    LargeCard ClipLargeCard;

    int16 CharacterCount = 0;
    int16 CurrentCharacter = 0;
    OneBasedArray<Character> Characters;
    Character ClipCharacter;

    int16 NewCardBackCount = 0;
    int16 CurrentNewCardBack = 0;
    OneBasedArray<NewCardBack> NewCardBacks;
    NewCardBack ClipNewCardBack;
};

} // namespace deckforge
