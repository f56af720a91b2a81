#include "core/SetTables.h"

#include "platform/Numbers.h"

namespace deckforge {

namespace {

/// Makes room for one more row, and gives it.
template <class Row>
Row& Grow(OneBasedArray<Row>& table, int16& count)
{
    const int16 last = CheckedAdd(count, 1);
    table.Resize(last);
    count = last;
    return table[last];
}

template <class Row>
void DeleteOwnRow(OneBasedArray<Row>& table, int16& count, int16 first, int ownRow)
{
    if (ownRow < 0)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    table.Remove(first + ownRow);
    count = CheckedAdd(count, -1);
}

} // namespace

QStringList OwnBackNames(const CardSet& set)
{
    QStringList names;
    for (int row = FirstOwnBack; row <= set.CardBackCount; ++row)
        names += set.CardBacks[row].Name;
    return names;
}

QStringList OwnTypeEntries(const CardSet& set)
{
    QStringList entries;
    for (int row = FirstOwnType; row <= set.CardTypeCount; ++row) {
        const CardType& type = set.CardTypes[row];
        entries += QStringLiteral("%1 (%2)").arg(TypeListEntry(type), FormatNumberText(type.Number));
    }
    return entries;
}

void AddOwnBack(CardSet& set, const QString& name, const QString& picture)
{
    Grow(set.CardBacks, set.CardBackCount) = {.Name = name, .Picture = picture, .BuiltIn = false};
}

void DeleteOwnBack(CardSet& set, int ownRow)
{
    DeleteOwnRow(set.CardBacks, set.CardBackCount, FirstOwnBack, ownRow);
}

void AddOwnType(CardSet& set, const CardType& type)
{
    CardType& row = Grow(set.CardTypes, set.CardTypeCount);
    row = type;
    row.BuiltIn = false;
}

void DeleteOwnType(CardSet& set, int ownRow)
{
    DeleteOwnRow(set.CardTypes, set.CardTypeCount, FirstOwnType, ownRow);
}

int16 DefaultTypeRow(const CardSet& set)
{
    for (int16 row = set.CardTypeCount; row > 0; --row) {
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
