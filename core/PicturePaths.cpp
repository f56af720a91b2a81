// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/PicturePaths.h"

#include "core/CardKind.h"
#include "platform/Paths.h"

namespace deckforge {

namespace {

bool Always(const CardSet& /*set*/, int16 /*row*/)
{
    return true;
}

bool IsOwnBack(const CardSet& set, int16 row)
{
    return !set.CardBacks[row].BuiltIn;
}

template <class Record>
PathField FieldOf(const char* caption, QString& (*path)(CardSet&, int16),
                  bool (*isListed)(const CardSet&, int16) = Always)
{
    return {.Caption = caption,
            .Count = [](const CardSet& set) { return ListOf<Record>(set).Count(); },
            .IsListed = isListed,
            .Title = [](const CardSet& set, int16 row) -> const QString& {
                return ListOf<Record>(set)[row].*NameField<Record>;
            },
            .Path = path};
}

template <class Record, QString Record::*Field>
QString& PathOf(CardSet& set, int16 row)
{
    return ListOf<Record>(set)[row].*Field;
}

} // namespace

const std::vector<PathField>& PathFields()
{
    static const std::vector<PathField> fields = {
        FieldOf<Card>("Card", PathOf<Card, &Card::Picture>),
        FieldOf<LargeCard>("Large Card", PathOf<LargeCard, &LargeCard::Picture>),
        FieldOf<Character>("Character", PathOf<Character, &Character::Picture>),
        FieldOf<CardBack>("Card Back", PathOf<CardBack, &CardBack::Picture>, IsOwnBack),
        FieldOf<Character>("Playing Piece", PathOf<Character, &Character::PlayingPiece>),
        FieldOf<LargeCard>("Large Card Back", PathOf<LargeCard, &LargeCard::CardBack>),
        FieldOf<Card>("Card Background", PathOf<Card, &Card::Background>),
    };
    return fields;
}

std::vector<int16> ListedRows(const CardSet& set, const PathField& field)
{
    std::vector<int16> rows;
    for (int row = 1; row <= field.Count(set); ++row) {
        if (field.IsListed(set, static_cast<int16>(row)))
            rows.push_back(static_cast<int16>(row));
    }
    return rows;
}

void ChangeFolder(CardSet& set, const PathField& field, const std::vector<int16>& rows, const QString& folder)
{
    if (folder.isEmpty())
        return;
    const QString newPath = WithSeparator(folder);
    for (const int16 row : rows) {
        QString& path = field.Path(set, row);
        path = newPath + NamePart(path);
    }
}

} // namespace deckforge
