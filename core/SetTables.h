// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Vocabulary.h"

namespace deckforge {

// The set's own rows in the tables of types and backs, and the values of new cards. Own rows are numbered
// from 0 here, as in the lists of the dialogs.
// Kept: a row can be deleted while cards use it. They keep their texts and the index of their back, which may
// then be the next row or none.

/// The first of a set's own rows in each table.
inline constexpr int16 FirstOwnBack = BuiltInBackCount + 1;
inline constexpr int16 FirstOwnType = BuiltInTypeCount + 1;

[[nodiscard]] QStringList OwnBackNames(const CardSet& set);
[[nodiscard]] QStringList OwnTypeEntries(const CardSet& set); ///< "HAZARD-Trap (3)"

// Error 6 past 32,767 rows; error 9 if there is no such own row.
void AddOwnBack(CardSet& set, const QString& name, const QString& picture);
void DeleteOwnBack(CardSet& set, int ownRow);
void AddOwnType(CardSet& set, const CardType& type);
void DeleteOwnType(CardSet& set, int ownRow);

/// The last row whose first part is the type of new cards; 0 if there is none.
[[nodiscard]] int16 DefaultTypeRow(const CardSet& set);

/// Gives new cards the type and number of the row.
void ChooseDefaultType(CardSet& set, int16 row);

/// The number of a type as shown in lists: a space for none.
[[nodiscard]] QString FormatNumberText(int16 value);

/// The number of a type from text typed by the user; -1 if it is not a number. Error 6 past 16 bits.
[[nodiscard]] int16 ParseNumberText(const QString& text);

} // namespace deckforge
