// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardListRows.h"

#include <optional>

class QWidget;

namespace deckforge {

/// Shows the records of a list and returns the index of the chosen one; nothing if the dialog is closed.
[[nodiscard]] std::optional<int16> ChooseFromCardList(const CardSet& set, CardKind kind, QWidget* window);

} // namespace deckforge
