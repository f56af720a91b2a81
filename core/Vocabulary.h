// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

#include <QStringList>

namespace deckforge {

// What the program knows of the printed game.

inline constexpr int16 BuiltInTypeCount = 15;
inline constexpr int16 BuiltInBackCount = 27;

/// A built-in row of the table of card types, from 1 to BuiltInTypeCount. Error 9 for any other.
[[nodiscard]] CardType GetCardType(int row);

/// Fills the table with the built-in types; rows of the set's own are gone. The values of new cards become
/// those of row 2.
void InitCardTypes(CardSet& set);

/// Fills the table with the built-in backs; rows of the set's own are gone. New cards take row 1.
void InitCardBacks(CardSet& set);

// The lists of the editor, in their order. They suggest values; a card keeps whatever was typed.

[[nodiscard]] const QStringList& CardNumbers();
[[nodiscard]] const QStringList& CharacterBackNames();
[[nodiscard]] const QStringList& Alignments();
[[nodiscard]] const QStringList& StartAreas();
[[nodiscard]] const QStringList& AttributeValues();
[[nodiscard]] const QStringList& SaveFormats();

/// The row of CharacterBackNames() that takes a picture of the user's.
inline constexpr int16 UserDefinedCharacterBack = 3;

/// The entry of the list of backs that lets the user pick a picture.
[[nodiscard]] QString UserDefinedBack();

/// How a type stands in the list of types.
[[nodiscard]] QString TypeListEntry(const CardType& type);

} // namespace deckforge
