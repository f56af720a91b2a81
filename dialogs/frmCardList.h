#pragma once

#include "core/CardListRows.h"

#include <optional>

class QWidget;

namespace deckforge {

/// Shows the records of a list in a dialog over the window and gives the index of the one that the user
/// picks; nothing when the list is closed without.
[[nodiscard]] std::optional<int16> ChooseFromCardList(const CardSet& set, CardKind kind, QWidget* window);

} // namespace deckforge
