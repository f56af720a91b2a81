// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/CardListRows.h"

namespace deckforge {

namespace {

/// Empty if the card's back is not in the table.
QString BackName(const CardSet& set, int16 row)
{
    return row >= 0 && row <= set.CardBacks.Count() ? set.CardBacks[row].Name : QString();
}

QString LacksPicture(const QString& path)
{
    return path.isEmpty() ? QStringLiteral("Yes") : QStringLiteral("No");
}

QString TextOfCard(const CardSet& set, const Card& card, CardListColumn column)
{
    switch (column) {
    case CardListColumn::Card:
        return card.Title;
    case CardListColumn::Type:
        return card.SubType.isEmpty() ? card.Type : card.Type + QLatin1Char(' ') + card.SubType;
    case CardListColumn::Back:
        return BackName(set, card.CardBack);
    case CardListColumn::Picture:
        return LacksPicture(card.Picture);
    }
    return {};
}

QString TextOfCharacter(const Character& character, CardListColumn column)
{
    switch (column) {
    case CardListColumn::Card:
        return character.Name;
    case CardListColumn::Type:
        return {};
    case CardListColumn::Back:
        return character.CardBackPicture;
    case CardListColumn::Picture:
        return LacksPicture(character.Picture);
    }
    return {};
}

} // namespace

int16 CardListCount(const CardSet& set, CardKind kind)
{
    return kind == CardKind::Standard ? set.Cards.Count() : set.Characters.Count();
}

QString CardListText(const CardSet& set, CardKind kind, int16 index, CardListColumn column)
{
    return kind == CardKind::Standard ? TextOfCard(set, set.Cards[index], column)
                                      : TextOfCharacter(set.Characters[index], column);
}

} // namespace deckforge
