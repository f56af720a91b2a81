#include "core/SetTables.h"
#include "core/CardListRows.h"
#include "support/Failures.h"

#include <limits>

namespace deckforge {

namespace {

CardSet NewTables()
{
    CardSet set;
    InitCardTypes(set);
    InitCardBacks(set);
    return set;
}

QString Text(const char* text)
{
    return QString::fromLatin1(text);
}

} // namespace

TEST(SetTables, DeletedBackGivesItsRowToTheNext)
{
    CardSet set = NewTables();
    for (const char* name : {"One", "Two", "Three"})
        AddOwnBack(set, Text(name), Text(name) + QStringLiteral(".bmp"));
    DeleteOwnBack(set, 1);
    EXPECT_EQ(OwnBackNames(set), QStringList({Text("One"), Text("Three")}));
    EXPECT_EQ(set.CardBackCount, 29);
    EXPECT_EQ(set.CardBacks[29].Picture, Text("Three.bmp"));
    EXPECT_FALSE(set.CardBacks[29].BuiltIn);
    EXPECT_EQ(FailureOf([&] { DeleteOwnBack(set, 2); }), 9);
    EXPECT_EQ(FailureOf([&] { DeleteOwnBack(set, -1); }), 9) << "a built-in row";
    EXPECT_EQ(set.CardBackCount, 29);
}

TEST(SetTables, OwnTypesAreListedWithTheirNumbers)
{
    CardSet set = NewTables();
    AddOwnType(set, {Text("HAZARD-"), Text("Trap"), {}, {}, 3, true});
    AddOwnType(set, {Text("OMEN"), {}, {}, {}, -1, false});
    EXPECT_EQ(OwnTypeEntries(set), QStringList({Text("HAZARD-Trap (3)"), Text("OMEN ( )")}));
    EXPECT_FALSE(set.CardTypes[16].BuiltIn);
    DeleteOwnType(set, 0);
    EXPECT_EQ(OwnTypeEntries(set), QStringList(Text("OMEN ( )")));
    EXPECT_EQ(set.CardTypeCount, 16);
}

TEST(SetTables, TypeOfNewCardsIsTheLastRowOfThatName)
{
    CardSet set = NewTables();
    EXPECT_EQ(DefaultTypeRow(set), 6) << "the last enemy";
    AddOwnType(set, {Text("OMEN"), Text("Dark"), Text("NEMO"), Text("kraD"), -1, false});
    ChooseDefaultType(set, 16);
    EXPECT_EQ(set.LastType + set.LastSubType + set.LastTypeReversed + set.LastSubTypeReversed,
              Text("OMENDarkNEMOkraD"));
    EXPECT_EQ(set.LastNumber, -1);
    EXPECT_EQ(DefaultTypeRow(set), 16);
    set.LastType = Text("typed");
    EXPECT_EQ(DefaultTypeRow(set), 0);
}

TEST(SetTables, FullTableStaysAsItWas)
{
    CardSet set = NewTables();
    set.CardBackCount = std::numeric_limits<int16>::max();
    set.CardBacks.Resize(set.CardBackCount);
    EXPECT_EQ(FailureOf([&] { AddOwnBack(set, Text("Past"), {}); }), 6);
    EXPECT_EQ(set.CardBackCount, set.CardBacks.LastIndex());
    EXPECT_EQ(OwnBackNames(set).size(), 32767 - 27);
}

TEST(SetTables, NumberTextIsANumberOrNone)
{
    for (const auto& [text, number] : {std::pair{"5", 5},
                                       {" 12 ", 12},
                                       {"0", 0},
                                       {"-3", -3},
                                       {"2.5", 2},
                                       {"1e3", 1000},
                                       {"", -1},
                                       {"five", -1},
                                       {"5 eyes", -1}}) {
        EXPECT_EQ(ParseNumberText(Text(text)), number) << text;
    }
    EXPECT_EQ(FailureOf([] { static_cast<void>(ParseNumberText(Text("40000"))); }), 6);
    EXPECT_EQ(FormatNumberText(0), Text("0"));
    EXPECT_EQ(FormatNumberText(-1), Text(" "));
}

TEST(CardListRows, LargeCardsAreListedAsCharacters)
{
    CardSet set = NewTables();
    set.CardCount = 2;
    set.Cards.Resize(2);
    set.Cards[1].Title = Text("Sword");
    set.Cards[1].Type = Text("OBJECT-");
    set.Cards[1].SubType = Text("Magic");
    set.Cards[1].CardBack = 2;
    set.Cards[1].Picture = Text("a.bmp");
    set.Cards[2].Type = Text("EVENT");
    set.Cards[2].CardBack = 28; // past the table
    set.LargeCardCount = 1;
    set.LargeCards.Resize(1);
    set.CharacterCount = 1;
    set.Characters.Resize(1);
    set.Characters[1].Name = Text("Knight");
    set.Characters[1].CardBackPicture = Text("back.bmp");
    const auto row = [&](CardListMode mode, int16 index) {
        QStringList texts;
        for (const auto column :
             {CardListColumn::Card, CardListColumn::Type, CardListColumn::Back, CardListColumn::Picture})
            texts += CardListText(set, mode, index, column);
        return texts.join(QLatin1Char('|'));
    };
    EXPECT_EQ(CardListCount(set, CardListMode::Cards), 2);
    EXPECT_EQ(row(CardListMode::Cards, 1), Text("Sword|OBJECT- Magic|City|No"));
    EXPECT_EQ(row(CardListMode::Cards, 2), Text("|EVENT||Yes"));
    for (const CardListMode mode : {CardListMode::LargeCards, CardListMode::Characters}) {
        EXPECT_EQ(CardListCount(set, mode), 1);
        EXPECT_EQ(row(mode, 1), Text("Knight||back.bmp|Yes"));
    }
}

} // namespace deckforge
