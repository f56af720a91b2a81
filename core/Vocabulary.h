// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

#include <QStringList>

namespace deckforge {

// The built-in types and backs, and the values that the editor suggests.

inline constexpr int16 BuiltInTypeCount = 15;
inline constexpr int16 BuiltInBackCount = 27;

/// Resets the table to the built-in types. New cards take row 2.
void InitCardTypes(CardSet& set);

/// Resets the table to the built-in backs. New cards take row 1.
void InitCardBacks(CardSet& set);

// The lists of the editor, in their order. A field may hold any other text.

[[nodiscard]] const QStringList& CardNumbers();
[[nodiscard]] const QStringList& CharacterBackNames();
[[nodiscard]] const QStringList& Alignments();
[[nodiscard]] const QStringList& StartAreas();
[[nodiscard]] const QStringList& AttributeValues();
[[nodiscard]] const QStringList& SaveFormats();

/// The row of CharacterBackNames() for a picture chosen by the user.
inline constexpr int16 UserDefinedCharacterBack = 3;

/// The entry of the list of backs that lets the user pick a picture.
[[nodiscard]] QString UserDefinedBack();

/// The entry of a type in the list of types.
[[nodiscard]] QString TypeListEntry(const CardType& type);

} // namespace deckforge
