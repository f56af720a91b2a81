// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/SetTables.h"

#include "platform/Numbers.h"

namespace deckforge {

namespace {

template <class Row>
void DeleteOwnRow(OneBasedArray<Row>& table, int16 first, int ownRow)
{
    if (ownRow < 0)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    table.Remove(first + ownRow);
}

} // namespace

QStringList OwnBackNames(const CardSet& set)
{
    QStringList names;
    for (int row = FirstOwnBack; row <= set.CardBacks.Count(); ++row)
        names += set.CardBacks[row].Name;
    return names;
}

QStringList OwnTypeEntries(const CardSet& set)
{
    QStringList entries;
    for (int row = FirstOwnType; row <= set.CardTypes.Count(); ++row) {
        const CardType& type = set.CardTypes[row];
        entries += QStringLiteral("%1 (%2)").arg(TypeListEntry(type), FormatNumberText(type.Number));
    }
    return entries;
}

void AddOwnBack(CardSet& set, const QString& name, const QString& picture)
{
    set.CardBacks.Add() = {.Name = name, .Picture = picture, .BuiltIn = false};
}

void DeleteOwnBack(CardSet& set, int ownRow)
{
    DeleteOwnRow(set.CardBacks, FirstOwnBack, ownRow);
}

void AddOwnType(CardSet& set, const CardType& type)
{
    CardType& row = set.CardTypes.Add();
    row = type;
    row.BuiltIn = false;
}

void DeleteOwnType(CardSet& set, int ownRow)
{
    DeleteOwnRow(set.CardTypes, FirstOwnType, ownRow);
}

int16 DefaultTypeRow(const CardSet& set)
{
    for (int16 row = set.CardTypes.Count(); row > 0; --row) {
        if (set.CardTypes[row].Name == set.LastType)
            return row;
    }
    return 0;
}

void ChooseDefaultType(CardSet& set, int16 row)
{
    const CardType& type = set.CardTypes[row];
    set.LastType = type.Name;
    set.LastSubType = type.SubName;
    set.LastTypeReversed = type.ReversedName;
    set.LastSubTypeReversed = type.ReversedSubName;
    set.LastNumber = type.Number;
}

QString FormatNumberText(int16 value)
{
    return value >= 0 ? QString::number(value) : QStringLiteral(" ");
}

int16 ParseNumberText(const QString& text)
{
    double number = 0;
    try {
        number = NumberFromText(text.toLatin1());
    } catch (const RunTimeError& error) {
        if (error.Number() != ErrorNumber::TypeMismatch)
            throw;
        return -1;
    }
    return ToInt16(number);
}

} // namespace deckforge
