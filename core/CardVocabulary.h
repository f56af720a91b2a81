// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

namespace deckforge {

// How a card takes its type and its back from the tables of the set.

/// Gives the card the four texts of a type.
void SetTypeTexts(Card& card, const CardType& type);

/// Gives the card a row of the table of types, with its number; a negative one is none. Error 9 when there is
/// no such row.
void ChooseCardType(const CardSet& set, Card& card, int16 row);

/// Gives the card a type that was typed, and returns whether it is that of a row: one that is spelled like
/// its entry in the list. Any other is the card's own, with the same text on both sides.
bool TypeCardType(const CardSet& set, Card& card, const QString& text);

/// Adds a back of the user's own to the table, and gives its row. It is called like the file up to the first
/// dot; without one error 5 leaves a row without a name. Error 6 past 32767 rows.
int16 AddCardBack(CardSet& set, const QString& picture);

} // namespace deckforge
