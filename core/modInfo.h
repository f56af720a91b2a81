// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardKind.h"

namespace deckforge {

// Creating and changing a set in memory.

/// Resets the settings of the set; cards and tables stay.
void NewSet(CardSet& set);

/// Resets the thirteen fonts to their defaults.
void SetDefaultFont(SetHeader& header);

/// Resets the set to a new one with one standard card.
/// Kept: user-designed backs stay in the set.
void InitSet(CardSet& set);

// Give a new element the default values of number n, which its name contains.
void InitElement(const CardSet& set, Card& card, int16 n);
void InitElement(const CardSet& set, LargeCard& card, int16 n);
void InitElement(const CardSet& set, Character& character, int16 n);
void InitElement(const CardSet& set, NewCardBack& back, int16 n);

/// Adds an element at the end and makes it the current one. Error 6 past 32,767, with the set unchanged.
template <class Record>
void AddElement(CardSet& set)
{
    CardList<Record>& list = ListOf<Record>(set);
    Record& added = list.Add();
    InitElement(set, added, list.Count());
    list.Current = list.Count();
}

/// Replaces all elements by a single new one.
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

/// Copies the current element. The copy is kept when another set is opened, so cards can be copied from set
/// to set.
template <class Record>
void CopyElement(CardSet& set)
{
    CardList<Record>& list = ListOf<Record>(set);
    list.Clip = list.CurrentRecord();
}

/// Overwrites the current element with the copied one (default-constructed if nothing was copied).
template <class Record>
void PasteElement(CardSet& set)
{
    CardList<Record>& list = ListOf<Record>(set);
    list.CurrentRecord() = list.Clip;
}

/// "3 (12)": index and count.
[[nodiscard]] QString PositionText(int16 index, int16 count);

} // namespace deckforge
