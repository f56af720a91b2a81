// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardList.h"
#include "core/Records.h"
#include "platform/Files.h"

#include <optional>

namespace deckforge {

/// The file that a set was read from or written to last, as it was then. Header.FileName is the path that
/// this file holds: another one, if the file was copied or moved.
struct SetFile {
    QString Path;
    FileAttributes Attributes;
};

/// What a new card takes.
struct NewCardValues {
    QString LastType;
    QString LastTypeReversed;
    QString LastSubType;
    QString LastSubTypeReversed;
    int16 LastNumber = 0;
    int16 LastCardBack = 0;
    QString LastBackground;

    friend bool operator==(const NewCardValues&, const NewCardValues&) = default;
};

/// The one card set that a run of the program holds.
///
/// The two tables of vocabulary hold the built-in rows and behind them the set's own. There is at least one
/// standard card, and Cards.Current is one of them; of the other kinds there may be none, and their current
/// index is then 0.
struct CardSet : NewCardValues {
    SetHeader Header;
    std::optional<SetFile> File; ///< nothing for a set that was not read or written yet
    OneBasedArray<CardType> CardTypes;
    OneBasedArray<CardBack> CardBacks;

    CardList<Card> Cards;
    CardList<LargeCard> LargeCards;
    CardList<Character> Characters;
    CardList<NewCardBack> NewCardBacks;
};

} // namespace deckforge
