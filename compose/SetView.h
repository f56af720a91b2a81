// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"

namespace deckforge {

/// What failed while a set was shown; the rest of it is shown all the same.
struct ViewFailures {
    std::optional<RunTimeError> Symbol; ///< it cannot be loaded, and the set goes without
    CompositionFailure FirstCard = {};
};

/// Makes the set a new one and shows its card: at the start of the program, and for a new set.
[[nodiscard]] ViewFailures InitForm(Workshop& workshop);

/// Applies what holds for the whole set to the previews: symbol, fonts, numbers, and whether backs are made.
/// Returns why the symbol cannot be loaded; the set then goes without.
[[nodiscard]] std::optional<RunTimeError> ShowSet(Workshop& workshop);

// The symbol as the user has just chosen or cleared it. On the character it lies elsewhere than when the set
// is shown, and a cleared one stays there until a character is shown.
void ShowChosenSymbol(CardTemplates& templates, const Picture& symbol);
void HideSymbol(CardTemplates& templates);

/// Puts the numbers of the current cards on the previews, where the set wants them.
void ShowNumbers(Workshop& workshop);

/// Brings the previews up to date with a set that has just been read, and makes the first cards current.
[[nodiscard]] ViewFailures ShowOpenedSet(Workshop& workshop);

} // namespace deckforge
