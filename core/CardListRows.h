// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardKind.h"

namespace deckforge {

/// The columns of the list.
enum class CardListColumn { Card, Type, Back, Picture };
inline constexpr int CardListColumnCount = 4;

// The kind is that of the tab the list was opened from.

/// How many records the list has. That of the large cards has the characters: players know it so.
[[nodiscard]] int16 CardListCount(const CardSet& set, CardKind kind);

/// What the list tells of a record. "No" under Picture stands for one that has a picture. Error 9 when there
/// is no such record.
[[nodiscard]] QString CardListText(const CardSet& set, CardKind kind, int16 index, CardListColumn column);

} // namespace deckforge
