#include "core/CardVocabulary.h"

#include "core/SetTables.h"
#include "platform/Paths.h"
#include "platform/RunTimeError.h"

namespace deckforge {

namespace {

/// Where the list of types has the text, from 0; -1 where it has not.
int ListIndexOf(const CardSet& set, const QString& text)
{
    for (int row = 1; row <= set.CardTypes.Count(); ++row) {
        if (TypeListEntry(set.CardTypes[row]) == text)
            return row - 1;
    }
    return -1;
}

} // namespace

void TakeTypeTexts(Card& card, const CardType& type)
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
    TakeTypeTexts(card, type);
    card.Number = QString::number(type.Number);
}

void TypeCardType(const CardSet& set, Card& card, const QString& text)
{
    const int listIndex = ListIndexOf(set, text);
    if (listIndex < 0) {
        TakeTypeTexts(card, {.Name = text, .SubName = {}, .ReversedName = text, .ReversedSubName = {}});
        card.TypeIndex = -1;
        return;
    }
    // The list counts from 0 and the table from 1: what was typed gets the entry before it, and the first of
    // all the empty row 0. Sets made so far have their types so.
    const CardType& type = set.CardTypes[static_cast<int16>(listIndex)];
    TakeTypeTexts(card, type);
    card.TypeIndex = type.Number;
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
