// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Vocabulary.h"

#include "core/SetTables.h"

#include <array>

namespace deckforge {

namespace {

struct TypeRow {
    const char* Name;
    const char* SubName;
    const char* ReversedName;
    const char* ReversedSubName;
    int16 Number;
};

// The order must not change: cards and files of older versions refer to types by row. The first part of a
// type in two parts ends with the hyphen.
constexpr std::array<TypeRow, BuiltInTypeCount> TypeRows = {{
    {"ENEMY-", "Alien", "-ENEMY", "Alien", 2},
    {"ENEMY-", "Animal", "-ENEMY", "Animal", 2},
    {"ENEMY-", "Dragon", "-ENEMY", "Dragon", 2},
    {"ENEMY-Fey", "", "Fey-ENEMY", "", 2},
    {"ENEMY-", "Monster", "-ENEMY", "Monster", 2},
    {"ENEMY-", "Spirit", "-ENEMY", "Spirit", 3},
    {"EVENT", "", "EVENT", "", 1},
    {"EVENT-Law", "", "Law-EVENT", "", 1},
    {"FOLLOWER", "", "FOLLOWER", "", 5},
    {"OBJECT", "", "OBJECT", "", 5},
    {"OBJECT-", "Magic", "-OBJECT", "Magic", 5},
    {"PLACE", "", "PLACE", "", 6},
    {"SPELL", "", "SPELL", "", -1},
    {"STRANGER", "", "STRANGER", "", 4},
    {"ENEMY-Troll", "", "Troll-ENEMY", "", 2},
}};

// The art of row r is the picture with number r - 1.
constexpr std::array<const char*, BuiltInBackCount> BackNames = {"Adventure",
                                                                 "City",
                                                                 "Dungeon 1",
                                                                 "Dungeon 2",
                                                                 "Loan",
                                                                 "Purchase",
                                                                 "Spell",
                                                                 "Varnhelm",
                                                                 "Timescape",
                                                                 "Purchase Timescape",
                                                                 "Warrant",
                                                                 "Faeries",
                                                                 "Island",
                                                                 "Mystic Brew",
                                                                 "Contract",
                                                                 "Diablo II",
                                                                 "Diablo II Artifact",
                                                                 "Cursed Swamp",
                                                                 "Transformations",
                                                                 "Space Hulk",
                                                                 "Realm Of Chaos",
                                                                 "Trolls",
                                                                 "Trolls Treasure",
                                                                 "Sea Realm",
                                                                 "Desert",
                                                                 "Warlock's Maze",
                                                                 "Blank"};

constexpr int TypeOfNewCards = 2;

} // namespace

CardType GetCardType(int row)
{
    if (row < 1 || row > BuiltInTypeCount)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const TypeRow& entry = TypeRows[static_cast<std::size_t>(row) - 1];
    return {.Name = entry.Name,
            .SubName = entry.SubName,
            .ReversedName = entry.ReversedName,
            .ReversedSubName = entry.ReversedSubName,
            .Number = entry.Number,
            .BuiltIn = true};
}

void InitCardTypes(CardSet& set)
{
    set.CardTypes.Clear();
    set.CardTypes.Resize(BuiltInTypeCount);
    for (int row = 1; row <= BuiltInTypeCount; ++row)
        set.CardTypes[row] = GetCardType(row);

    ChooseDefaultType(set, TypeOfNewCards);
}

void InitCardBacks(CardSet& set)
{
    set.CardBacks.Clear();
    set.CardBacks.Resize(BuiltInBackCount);
    for (int row = 1; row <= BuiltInBackCount; ++row) {
        set.CardBacks[row] = {
            .Name = BackNames[static_cast<std::size_t>(row) - 1], .Picture = {}, .BuiltIn = true};
    }
    set.LastCardBack = 1;
}

const QStringList& CardNumbers()
{
    static const QStringList list = {"1", "2", "3", "4", "5", "6"};
    return list;
}

const QStringList& CharacterBackNames()
{
    static const QStringList list = {"STANDARD", "MASTER 1", "MASTER 2", UserDefinedBack()};
    return list;
}

const QStringList& Alignments()
{
    static const QStringList list = {"AS BEFORE", "GOOD", "EVIL", "NEUTRAL"};
    return list;
}

const QStringList& AttributeValues()
{
    static const QStringList list =
        QStringLiteral("+9 +8 +7 +6 +5 +4 +3 +2 +1 +0 --- 1 2 3 4 5 6 7 8 9").split(QLatin1Char(' '));
    return list;
}

const QStringList& SaveFormats()
{
    static const QStringList list = {"BMP", "JPG", "GIF"};
    return list;
}

QString UserDefinedBack()
{
    return QStringLiteral("User defined");
}

QString TypeListEntry(const CardType& type)
{
    return type.Name + type.SubName;
}

} // namespace deckforge
