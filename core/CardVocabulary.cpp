// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/CardVocabulary.h"

#include "core/SetTables.h"
#include "platform/Paths.h"
#include "platform/RunTimeError.h"

namespace deckforge {

namespace {

/// The row whose list entry is the text; 0 if there is none.
int16 RowOfEntry(const CardSet& set, const QString& text)
{
    for (int row = 1; row <= set.CardTypes.Count(); ++row) {
        if (TypeListEntry(set.CardTypes[row]) == text)
            return static_cast<int16>(row);
    }
    return 0;
}

} // namespace

void SetTypeTexts(Card& card, const CardType& type)
{
    card.Type = type.Name;
    card.SubType = type.SubName;
    card.TypeReversed = type.ReversedName;
    card.SubTypeReversed = type.ReversedSubName;
}

void ChooseCardType(const CardSet& set, Card& card, int16 row)
{
    const CardType& type = set.CardTypes[row];
    card.TypeIndex = row;
    SetTypeTexts(card, type);
    card.Number = type.Number < 0 ? QString() : QString::number(type.Number);
}

bool TypeCardType(const CardSet& set, Card& card, const QString& text)
{
    if (const int16 row = RowOfEntry(set, text)) {
        ChooseCardType(set, card, row);
        return true;
    }
    SetTypeTexts(card, {.Name = text, .SubName = {}, .ReversedName = text, .ReversedSubName = {}});
    card.TypeIndex = -1;
    return false;
}

int16 AddCardBack(CardSet& set, const QString& picture)
{
    AddOwnBack(set, {}, picture);
    const QString name = NamePart(picture);
    const qsizetype dot = name.indexOf(QLatin1Char('.'));
    if (dot < 0)
        throw RunTimeError(ErrorNumber::InvalidCall);
    set.CardBacks[set.CardBacks.Count()].Name = name.left(dot);
    return set.CardBacks.Count();
}

} // namespace deckforge
