// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

#include <type_traits>

namespace deckforge {

/// The kinds of card, in the order of the window's tabs.
enum class CardKind { Standard, Large, Character, NewBack };

/// The kind of a record type.
template <class Record>
inline constexpr CardKind KindOf = CardKind::Standard;
template <>
inline constexpr CardKind KindOf<LargeCard> = CardKind::Large;
template <>
inline constexpr CardKind KindOf<Character> = CardKind::Character;
template <>
inline constexpr CardKind KindOf<NewCardBack> = CardKind::NewBack;

/// The field that holds a record's title or name.
template <class Record>
inline constexpr QString Record::*NameField = nullptr;
template <>
inline constexpr QString Card::*NameField<Card> = &Card::Title;
template <>
inline constexpr QString LargeCard::*NameField<LargeCard> = &LargeCard::Title;
template <>
inline constexpr QString Character::*NameField<Character> = &Character::Name;
template <>
inline constexpr QString NewCardBack::*NameField<NewCardBack> = &NewCardBack::Name;
template <>
inline constexpr QString CardBack::*NameField<CardBack> = &CardBack::Name;

/// The list or table of the set that holds records of this type.
template <class Record, class Set>
[[nodiscard]] auto& ListOf(Set& set)
{
    if constexpr (std::is_same_v<Record, Card>)
        return set.Cards;
    else if constexpr (std::is_same_v<Record, LargeCard>)
        return set.LargeCards;
    else if constexpr (std::is_same_v<Record, Character>)
        return set.Characters;
    else if constexpr (std::is_same_v<Record, NewCardBack>)
        return set.NewCardBacks;
    else if constexpr (std::is_same_v<Record, CardType>)
        return set.CardTypes;
    else
        return set.CardBacks;
}

/// Calls the function with the list of a kind.
template <class Set, class Function>
decltype(auto) WithListOf(Set& set, CardKind kind, Function&& function)
{
    switch (kind) {
    case CardKind::Large:
        return function(set.LargeCards);
    case CardKind::Character:
        return function(set.Characters);
    case CardKind::NewBack:
        return function(set.NewCardBacks);
    case CardKind::Standard:
        break;
    }
    return function(set.Cards);
}

[[nodiscard]] inline int16 CountOf(const CardSet& set, CardKind kind)
{
    return WithListOf(set, kind, [](const auto& list) { return list.Count(); });
}

/// The title or name of a record; empty if the index is past the end of the list.
[[nodiscard]] inline QString NameOf(const CardSet& set, CardKind kind, int16 index)
{
    return WithListOf(set, kind, [&](const auto& list) {
        using Record = std::decay_t<decltype(list[index])>;
        return index <= list.Count() ? list[index].*NameField<Record> : QString();
    });
}

/// Index of the record that is being edited; 0 if there is none.
[[nodiscard]] inline int16& CurrentOf(CardSet& set, CardKind kind)
{
    return WithListOf(set, kind, [](auto& list) -> int16& { return list.Current; });
}

[[nodiscard]] inline int16 CurrentOf(const CardSet& set, CardKind kind)
{
    return WithListOf(set, kind, [](const auto& list) { return list.Current; });
}

} // namespace deckforge
