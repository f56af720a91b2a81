// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/SetTables.h"
#include "core/CardListRows.h"
#include "core/CardVocabulary.h"
#include "support/SetTest.h"

#include <limits>

namespace deckforge {

using SetTables = SetTest;

TEST_F(SetTables, TheNextBackMovesToTheRowOfADeletedOne)
{
    for (const QString name : {"One", "Two", "Three"})
        AddOwnBack(Set, name, name + ".bmp");
    DeleteOwnBack(Set, 1);
    EXPECT_EQ(OwnBackNames(Set), (QStringList{"One", "Three"}));
    EXPECT_EQ(Set.CardBacks.Count(), 29);
    EXPECT_EQ(Set.CardBacks[29].Picture, "Three.bmp");
    EXPECT_FALSE(Set.CardBacks[29].BuiltIn);
    EXPECT_EQ(FailureOf([&] { DeleteOwnBack(Set, 2); }), 9);
    EXPECT_EQ(FailureOf([&] { DeleteOwnBack(Set, -1); }), 9) << "a built-in row";
    EXPECT_EQ(Set.CardBacks.Count(), 29);

    Set.CardBacks.Resize(std::numeric_limits<int16>::max());
    EXPECT_EQ(FailureOf([&] { AddOwnBack(Set, "Past", {}); }), 6) << "a full table stays as it was";
    EXPECT_EQ(OwnBackNames(Set).size(), 32767 - 27);
}

TEST_F(SetTables, OwnTypesAreListedWithTheirNumbers)
{
    AddOwnType(Set, {"HAZARD-", "Trap", {}, {}, 0, true});
    AddOwnType(Set, {"OMEN", {}, {}, {}, -1, false});
    EXPECT_EQ(OwnTypeEntries(Set), (QStringList{"HAZARD-Trap (0)", "OMEN ( )"}));
    EXPECT_FALSE(Set.CardTypes[16].BuiltIn);
    for (const auto& [row, number] : {std::pair{int16{16}, "0"}, {int16{17}, ""}}) {
        ChooseCardType(Set, FirstCard(), row);
        EXPECT_EQ(FirstCard().Number, number);
    }
    DeleteOwnType(Set, 0);
    EXPECT_EQ(OwnTypeEntries(Set), QStringList("OMEN ( )"));
    EXPECT_EQ(Set.CardTypes.Count(), 16);
    ChooseDefaultType(Set, 16);
    EXPECT_EQ(DefaultTypeRow(Set), 16);
    Set.LastType = "typed";
    EXPECT_EQ(DefaultTypeRow(Set), 0) << "no row of that name";
}

TEST_F(SetTables, NumberTextIsANumberOrNone)
{
    const std::pair<const char*, int> rows[] = {{"5", 5},   {" 12 ", 12}, {"0", 0},
                                                {"-3", -3}, {"2.5", 2},   {"1e3", 1000},
                                                {"", -1},   {"five", -1}, {"5 eyes", -1}};
    for (const auto& [text, number] : rows)
        EXPECT_EQ(ParseNumberText(text), number) << text;
}

TEST_F(SetTables, TheListOfLargeCardsShowsCharacters)
{
    AddElement<Card>(Set);
    AddElement<LargeCard>(Set);
    AddElement<Character>(Set);
    Set.Cards[1].CardBack = 2;
    Set.Cards[1].Picture = "a.bmp";
    Set.Cards[2] = {};
    Set.Cards[2].Type = "EVENT";
    Set.Cards[2].CardBack = 28; // past the table
    Set.Characters[1].CardBackPicture = "back.bmp";
    const std::tuple<CardKind, int16, int, const char*> rows[] = {
        {CardKind::Standard, 1, 2, "CARD 1|ENEMY- Animal|City|No"},
        {CardKind::Standard, 2, 2, "|EVENT||Yes"},
        {CardKind::Large, 1, 1, "CHARACTER 1||back.bmp|Yes"},
        {CardKind::Character, 1, 1, "CHARACTER 1||back.bmp|Yes"}};
    for (const auto& [kind, row, count, expected] : rows) {
        QStringList texts;
        for (const auto column :
             {CardListColumn::Card, CardListColumn::Type, CardListColumn::Back, CardListColumn::Picture})
            texts += CardListText(Set, kind, row, column);
        EXPECT_EQ(texts.join('|'), expected);
        EXPECT_EQ(CardListCount(Set, kind), count);
    }
}

} // namespace deckforge
