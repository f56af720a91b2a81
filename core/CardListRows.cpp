// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/CardListRows.h"

namespace deckforge {

namespace {

/// Empty if the card's back is not in the table.
QString BackName(const CardSet& set, int16 row)
{
    return row >= 0 && row <= set.CardBacks.Count() ? set.CardBacks[row].Name : QString();
}

} // namespace

int16 CardListCount(const CardSet& set, CardKind kind)
{
    return kind == CardKind::Standard ? set.Cards.Count() : set.Characters.Count();
}

QString CardListText(const CardSet& set, CardKind kind, int16 index, CardListColumn column)
{
    const bool isCard = kind == CardKind::Standard;
    const Card& card = set.Cards[isCard ? index : 0]; // the element at 0 is empty
    const Character& character = set.Characters[isCard ? 0 : index];
    switch (column) {
    case CardListColumn::Card:
        return isCard ? card.Title : character.Name;
    case CardListColumn::Type:
        return card.SubType.isEmpty() ? card.Type : card.Type + QLatin1Char(' ') + card.SubType;
    case CardListColumn::Back:
        return isCard ? BackName(set, card.CardBack) : character.CardBackPicture;
    case CardListColumn::Picture:
        return (isCard ? card.Picture : character.Picture).isEmpty() ? "Yes" : "No";
    }
    return {};
}

} // namespace deckforge
