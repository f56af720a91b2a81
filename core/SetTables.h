// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Vocabulary.h"

namespace deckforge {

// What a set adds to the vocabulary: rows of its own behind the built-in ones, and the values of new cards.
// Own rows count from 0 here, as lists show them. Rows in use go as any other: cards keep their texts and the
// number of their back, which then may be the next row or none.

/// The first of a set's own rows in each table.
inline constexpr int16 FirstOwnBack = BuiltInBackCount + 1;
inline constexpr int16 FirstOwnType = BuiltInTypeCount + 1;

[[nodiscard]] QStringList OwnBackNames(const CardSet& set);
[[nodiscard]] QStringList OwnTypeEntries(const CardSet& set); ///< "HAZARD-Trap (3)"

// Error 6 past 32767 rows; error 9 when there is no such row of the set's own.
void AddOwnBack(CardSet& set, const QString& name, const QString& picture);
void DeleteOwnBack(CardSet& set, int ownRow);
void AddOwnType(CardSet& set, const CardType& type);
void DeleteOwnType(CardSet& set, int ownRow);

/// The row of the type that a new card takes, the last one of that first part; 0 when there is none.
[[nodiscard]] int16 DefaultTypeRow(const CardSet& set);

/// New cards take the type of the row, with its number.
void ChooseDefaultType(CardSet& set, int16 row);

/// The number of a type as lists tell it: a blank for none.
[[nodiscard]] QString FormatNumberText(int16 value);

/// What was typed as the number of a type; -1 for anything but a number. Error 6 for one past 16 bits.
[[nodiscard]] int16 ParseNumberText(const QString& text);

} // namespace deckforge
