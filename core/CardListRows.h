#pragma once

#include "core/CardSet.h"

namespace deckforge {

/// Whose tab the list of cards was opened from.
enum class CardListMode : int16 { Cards, LargeCards, Characters };

/// The columns of the list.
enum class CardListColumn { Card, Type, Back, Picture };
inline constexpr int CardListColumnCount = 4;

/// How many records the list has. That of the large cards has the characters: players know it so.
[[nodiscard]] int16 CardListCount(const CardSet& set, CardListMode mode);

/// What the list tells of a record. "No" under Picture stands for one that has a picture. Error 9 when there
/// is no such record.
[[nodiscard]] QString CardListText(const CardSet& set, CardListMode mode, int16 index, CardListColumn column);

} // namespace deckforge
