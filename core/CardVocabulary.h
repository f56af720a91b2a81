// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

namespace deckforge {

// Choosing the type and the back of a card from the tables of the set.

/// Copies the four texts of the type to the card.
void SetTypeTexts(Card& card, const CardType& type);

/// Sets the card's type and number from a row of the table of types. A negative number leaves the card's
/// number empty. Error 9 if there is no such row.
void ChooseCardType(const CardSet& set, Card& card, int16 row);

/// Sets the card's type from text typed by the user. Returns true if the text equals a list entry, whose row
/// is then chosen. Any other text becomes the type on both sides of the card.
bool TypeCardType(const CardSet& set, Card& card, const QString& text);

/// Adds a user-defined back to the table and returns its row. Its name is the file name up to the first dot.
/// Error 6 past 32,767 rows.
/// Kept: a file name without a dot is error 5, after a row without a name was added.
int16 AddCardBack(CardSet& set, const QString& picture);

} // namespace deckforge
