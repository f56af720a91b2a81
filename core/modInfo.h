// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardKind.h"

namespace deckforge {

// The life of the set in memory. Nothing here touches a file.

/// Puts back what holds for the whole set; cards and tables stay.
void NewSet(CardSet& set);

/// The thirteen fonts as a new set has them.
void SetDefaultFont(SetHeader& header);

/// Makes the set a new one with one standard card. User-designed backs of the set before stay in it.
void InitSet(CardSet& set);

// What a new element of each kind holds; n goes into its name. Error 9 when there is no element n.
void InitCard(CardSet& set, int16 n);
void InitLargeCard(CardSet& set, int16 n);
void InitCharacter(CardSet& set, int16 n);
void InitNewCardBack(CardSet& set, int16 n);

template <class Record>
void InitElement(CardSet& set, int16 n)
{
    if constexpr (std::is_same_v<Record, Card>)
        InitCard(set, n);
    else if constexpr (std::is_same_v<Record, LargeCard>)
        InitLargeCard(set, n);
    else if constexpr (std::is_same_v<Record, Character>)
        InitCharacter(set, n);
    else
        InitNewCardBack(set, n);
}

/// Adds an element at the end and makes it the current one. Error 6 past 32767; the set is then as before.
template <class Record>
void AddElement(CardSet& set)
{
    CardList<Record>& list = ListOf<Record>(set);
    list.Add();
    InitElement<Record>(set, list.Count());
    list.Current = list.Count();
}

/// Makes the kind have one element, a new one.
template <class Record>
void MakeFirstElement(CardSet& set)
{
    ListOf<Record>(set).Clear();
    AddElement<Record>(set);
}

/// Deletes the current element. The next one moves to its index; after the last one, the index decreases by
/// one.
template <class Record>
void DeleteElement(CardSet& set)
{
    CardList<Record>& list = ListOf<Record>(set);
    list.Remove(list.Current);
    list.Current = std::min(list.Current, list.Count());
}

/// Keeps a copy of the current element. It survives a replacement of the set, so that cards can be copied
/// from set to set.
template <class Record>
void CopyElement(CardSet& set)
{
    CardList<Record>& list = ListOf<Record>(set);
    list.Clip = list.CurrentRecord();
}

/// Overwrites the current element with the copied one (an empty one if nothing of the kind was copied).
template <class Record>
void PasteElement(CardSet& set)
{
    CardList<Record>& list = ListOf<Record>(set);
    list.CurrentRecord() = list.Clip;
}

/// "3 (12)": where the current element stands.
[[nodiscard]] QString PositionText(int16 index, int16 count);

} // namespace deckforge
