#pragma once

#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/StandardCard.h"
#include "core/modInfo.h"
#include "output/modCapture.h"

namespace deckforge {

/// How a run walks over the cards of a kind.
template <class Record>
struct CardWalk {
    bool (*Show)(Workshop&, int16);
    void (*Save)(Workshop&, RunReport&, int16, Ask, Tell, SheetNumber);
};

inline constexpr CardWalk<Card> StandardWalk = {ShowCard, SaveCard};
inline constexpr CardWalk<LargeCard> LargeWalk = {ShowLargeCard, SaveLargeCard};
inline constexpr CardWalk<Character> CharacterWalk = {ShowCharacter, SaveCharacter};

/// Makes each card of the kind the current one, shows it, and carries out the step on it; the one that was
/// current before is shown at the end. The hourglass stands for the time of the run.
template <class Record, class Step>
void ForEachShown(Workshop& workshop, const CardWalk<Record>& walk, Step&& step)
{
    const HourglassScope hourglass(workshop.User);
    CardList<Record>& cards = ListOf<Record>(workshop.Set);
    const int16 remembered = cards.Current;
    const int count = cards.Count();
    for (int i = 1; i <= count; ++i) {
        cards.Current = static_cast<int16>(i);
        walk.Show(workshop, cards.Current);
        step(cards.Current);
        workshop.User.ShowProgress(i, count);
    }
    cards.Current = remembered;
    walk.Show(workshop, remembered);
}

} // namespace deckforge
