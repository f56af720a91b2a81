// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardKind.h"

namespace deckforge {

enum class CardListColumn { Card, Type, Back, Picture };
inline constexpr int CardListColumnCount = 4;

// The card list shows the kind of the tab that it was opened from.

/// Number of rows.
/// Kept: the list of large cards shows the characters.
[[nodiscard]] int16 CardListCount(const CardSet& set, CardKind kind);

/// The text of a cell. Error 9 if there is no such record.
/// Kept: "No" in the column Picture means that the record has a picture.
[[nodiscard]] QString CardListText(const CardSet& set, CardKind kind, int16 index, CardListColumn column);

} // namespace deckforge
