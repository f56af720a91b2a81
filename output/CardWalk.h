// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/StandardCard.h"
#include "output/RunReport.h"

namespace deckforge {

/// The number of copies of a card on sheets and pages.
template <class Record>
[[nodiscard]] int CopiesOf(const Record& record)
{
    if constexpr (requires { record.Copies; })
        return record.Copies;
    else
        return 1;
}

/// Composes a card. Not for user-designed backs.
[[nodiscard]] inline CompositionFailure Compose(Workshop& workshop, CardKind kind, int16 index)
{
    return kind == CardKind::Standard ? ShowCard(workshop, index)
           : kind == CardKind::Large  ? ShowLargeCard(workshop, index)
                                      : ShowCharacter(workshop, index);
}

/// Composes each card of the kind as the current one and runs the step on it. At the end the previous current
/// card is composed again.
template <class Step>
void ForEachShown(Workshop& workshop, RunReport& report, CardKind kind, Step&& step)
{
    const auto show = [&](int16 index) {
        CurrentOf(workshop.Set, kind) = index;
        if (const CompositionFailure failure = Compose(workshop, kind, index))
            report.ShowNotComposed(*failure);
    };
    const int16 remembered = CurrentOf(workshop.Set, kind);
    const int16 count = CountOf(workshop.Set, kind);
    for (int i = 1; i <= count; ++i) {
        show(static_cast<int16>(i));
        step(static_cast<int16>(i));
        report.ShowProgress(i, count);
    }
    show(remembered);
}

} // namespace deckforge
