#include "core/PicturePaths.h"

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

template <auto Records, auto Title>
const QString& TitleOf(const CardSet& set, int16 row)
{
    return (set.*Records)[row].*Title;
}

template <auto Records, auto Path>
QString& PathOf(CardSet& set, int16 row)
{
    return (set.*Records)[row].*Path;
}

} // namespace

const std::vector<PathField>& PathFields()
{
    static const std::vector<PathField> fields = {
        {"Card", &CardSet::CardCount, Always, TitleOf<&CardSet::Cards, &Card::Title>,
         PathOf<&CardSet::Cards, &Card::Picture>},
        {"Large Card", &CardSet::LargeCardCount, Always, TitleOf<&CardSet::LargeCards, &LargeCard::Title>,
         PathOf<&CardSet::LargeCards, &LargeCard::Picture>},
        {"Character", &CardSet::CharacterCount, Always, TitleOf<&CardSet::Characters, &Character::Name>,
         PathOf<&CardSet::Characters, &Character::Picture>},
        {"Card Back", &CardSet::CardBackCount, IsOwnBack, TitleOf<&CardSet::CardBacks, &CardBack::Name>,
         PathOf<&CardSet::CardBacks, &CardBack::Picture>},
        {"Playing Piece", &CardSet::CharacterCount, Always, TitleOf<&CardSet::Characters, &Character::Name>,
         PathOf<&CardSet::Characters, &Character::PlayingPiece>},
        {"Large Card Back", &CardSet::LargeCardCount, Always,
         TitleOf<&CardSet::LargeCards, &LargeCard::Title>,
         PathOf<&CardSet::LargeCards, &LargeCard::CardBack>},
        {"Card Background", &CardSet::CardCount, Always, TitleOf<&CardSet::Cards, &Card::Title>,
         PathOf<&CardSet::Cards, &Card::Background>},
    };
    return fields;
}

std::vector<int16> ListedRows(const CardSet& set, const PathField& field)
{
    std::vector<int16> rows;
    for (int row = 1; row <= set.*field.Count; ++row) {
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
