// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardList.h"
#include "core/Records.h"
#include "platform/Files.h"

#include <optional>

namespace deckforge {

/// The file that the set was last read from or written to, and its attributes at that time. Header.FileName
/// is the path inside this file, which differs from Path if the file was copied or moved.
struct SetFile {
    QString Path;
    FileAttributes Attributes;
};

/// Values for the next new card.
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

/// A card set in memory.
///
/// The tables of types and backs have the built-in rows first, then the set's own. There is always a current
/// standard card. The other lists may be empty; their current index is then 0.
struct CardSet : NewCardValues {
    SetHeader Header;
    std::optional<SetFile> File; ///< nothing before the set is read or written
    OneBasedArray<CardType> CardTypes;
    OneBasedArray<CardBack> CardBacks;

    CardList<Card> Cards;
    CardList<LargeCard> LargeCards;
    CardList<Character> Characters;
    CardList<NewCardBack> NewCardBacks;
};

} // namespace deckforge
