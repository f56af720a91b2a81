// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/NewBack.h"
#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "core/Vocabulary.h"
#include "files/modFile.h"
#include "fuzz/Drawing.h"
#include "fuzz/FuzzedFile.h"

// Reads, shows and writes untrusted sets. A set that was read can be written so that it can be read again.

using namespace deckforge;

namespace {

/// Pictures are fuzzed by another target.
void ForgetPictures(CardSet& set)
{
    set.Header.Symbol.clear();
    for (int i = 1; i <= set.Cards.Count(); ++i)
        set.Cards[i].Picture = set.Cards[i].Background = QString();
    for (int i = 1; i <= set.LargeCards.Count(); ++i)
        set.LargeCards[i].Picture = set.LargeCards[i].Background = set.LargeCards[i].CardBack = QString();
    for (int i = 1; i <= set.Characters.Count(); ++i) {
        Character& character = set.Characters[i];
        character.Picture = character.Background = character.CardBackPicture = character.PlayingPiece =
            QString();
    }
    for (int i = 1; i <= set.NewCardBacks.Count(); ++i)
        set.NewCardBacks[i].Picture.clear();
    for (int row = BuiltInBackCount + 1; row <= set.CardBacks.Count(); ++row)
        set.CardBacks[row].Picture.clear();
}

void ShowAll(Workshop& workshop)
{
    (void)ShowOpenedSet(workshop); // composes as well, as the others do
    if (workshop.Set.LargeCards.Count() > 0)
        (void)ShowLargeCard(workshop, 1);
    if (workshop.Set.Characters.Count() > 0)
        (void)ShowCharacter(workshop, 1);
    if (workshop.Set.NewCardBacks.Count() > 0) {
        DrawNewCardBack(workshop, 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    StartDrawing();
    static Workshop workshop;
    (void)InitForm(workshop);
    if (!ReadDKF(workshop.Set, FuzzedFile(bytes, size).Path()).IsRead())
        return 0;
    const QByteArray written = SetFileBytes(workshop.Set, Unwritable::Fail);
    CardSet again = workshop.Set;
    const FuzzedFile file(reinterpret_cast<const std::uint8_t*>(written.data()),
                          static_cast<std::size_t>(written.size()));
    if (!ReadDKF(again, file.Path()).IsRead() || SetFileBytes(again, Unwritable::Fail) != written)
        std::abort();
    ForgetPictures(workshop.Set);
    if (workshop.Set.Cards.Count() > 0)
        ShowAll(workshop);
    return 0;
}
