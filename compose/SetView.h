// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

/// Failures while a set was shown. The rest of the set is shown nevertheless.
struct ViewFailures {
    std::optional<RunTimeError> Symbol; ///< why the symbol is not shown
    CompositionFailure FirstCard = {};
};

/// Creates a new set and shows its card.
[[nodiscard]] ViewFailures InitForm(Workshop& workshop);

/// Applies the settings of the set to the previews: symbol, fonts, numbers, visible backs. Returns why the
/// symbol cannot be loaded.
[[nodiscard]] std::optional<RunTimeError> ShowSet(Workshop& workshop);

// After the user chose or cleared the symbol.
// Kept: on the character it is at another position than in ShowSet, and a cleared symbol stays there until
// ShowSet.
void ShowChosenSymbol(CardTemplates& templates, const Picture& symbol);
void HideSymbol(CardTemplates& templates);

/// Shows the numbers of the current cards on the previews, if the set has Autonumber.
void ShowNumbers(CardTemplates& templates, const CardSet& set);

/// Shows a set that was just read, with the first cards current.
[[nodiscard]] ViewFailures ShowOpenedSet(Workshop& workshop);

} // namespace deckforge
