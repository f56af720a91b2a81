// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/PicturePaths.h"

#include "core/CardKind.h"
#include "platform/Paths.h"

namespace deckforge {

namespace {

template <class Record>
std::vector<int16> RowsOf(const CardSet& set)
{
    std::vector<int16> rows;
    const OneBasedArray<Record>& list = ListOf<Record>(set);
    for (int row = 1; row <= list.Count(); ++row) {
        if constexpr (std::is_same_v<Record, CardBack>) {
            if (list[row].BuiltIn)
                continue;
        }
        rows.push_back(static_cast<int16>(row));
    }
    return rows;
}

template <class Record, QString Record::*Field>
PathField FieldOf(const char* caption)
{
    return {.Caption = caption,
            .Rows = RowsOf<Record>,
            .Title = [](const CardSet& set, int16 row) -> const QString& {
                return ListOf<Record>(set)[row].*NameField<Record>;
            },
            .Path = [](CardSet& set, int16 row) -> QString& { return ListOf<Record>(set)[row].*Field; }};
}

} // namespace

const std::vector<PathField>& PathFields()
{
    static const std::vector<PathField> fields = {
        FieldOf<Card, &Card::Picture>("Card"),
        FieldOf<LargeCard, &LargeCard::Picture>("Large Card"),
        FieldOf<Character, &Character::Picture>("Character"),
        FieldOf<CardBack, &CardBack::Picture>("Card Back"),
        FieldOf<Character, &Character::PlayingPiece>("Playing Piece"),
        FieldOf<LargeCard, &LargeCard::CardBack>("Large Card Back"),
        FieldOf<Card, &Card::Background>("Card Background"),
    };
    return fields;
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
