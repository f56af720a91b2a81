// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/CardVocabulary.h"
#include "core/SetTables.h"
#include "core/Vocabulary.h"
#include "support/EveryKind.h"
#include "support/SetTest.h"

namespace deckforge {

using SetLifecycle = SetTest;

TEST_F(SetLifecycle, DeletingAsksByNameAndLeavesTheCardBeforeTheLastOne)
{
    for (int i = 0; i < 3; ++i)
        AddElement<Card>(Set);
    Set.Cards.Current = 3;
    User.WillAnswer(Answer::No);
    EXPECT_FALSE(DeleteElement<Card>(Set, User));
    EXPECT_EQ(Set.Cards.Count(), 4);
    EXPECT_EQ(User.LastMessageText(), "Confirm delete|Are you sure you want to delete the card \"CARD 3\"?");
    EXPECT_EQ(User.LastBox().Style, BoxStyle::Question);
    User.WillAnswer(Answer::Yes);
    EXPECT_TRUE(DeleteElement<Card>(Set, User));
    EXPECT_EQ(Set.Cards.Current, 3);
    EXPECT_EQ(Set.Cards[3].Title, "CARD 4");
    User.WillAnswer(Answer::Yes);
    EXPECT_TRUE(DeleteElement<Card>(Set, User));
    EXPECT_EQ(PositionText(Set.Cards.Current, Set.Cards.Count()), "2 (2)");
    AddElement<Card>(Set);
    EXPECT_EQ(Set.Cards[3].Title, "CARD 3") << "cards are numbered by their place";
}

TEST_F(SetLifecycle, CardsPastTheMaximumAreAnError)
{
    Set.Cards.Resize(32767);
    EXPECT_EQ(FailureOf([&] { AddElement<Card>(Set); }), 6);
    EXPECT_EQ(Set.Cards.Count(), 32767);
    EXPECT_EQ(FailureOf([&] { (void)Set.Cards[32768]; }), 9);
    EXPECT_EQ(FailureOf([&] { (void)Set.Cards[-1]; }), 9);
}

TEST_F(SetLifecycle, ANewCardHasTheDefaultsOfTheSet)
{
    Set.LastType = "type";
    Set.LastSubType = "second";
    Set.LastTypeReversed = "reversed";
    Set.LastSubTypeReversed = "its second";
    Set.LastNumber = 4;
    Set.LastBackground = "ground.bmp";
    Set.LastCardBack = 6;
    AddElement<Card>(Set);
    const Card& card = Set.Cards[2];
    EXPECT_EQ(card.CardBack, 6);
    EXPECT_EQ((QStringList{card.Type, card.SubType, card.TypeReversed, card.SubTypeReversed, card.Number,
                           card.Background}),
              (QStringList{"type", "second", "reversed", "its second", "4", "ground.bmp"}));
}

TEST_F(SetLifecycle, ANewSetKeepsNothingButTheDesignedBacks)
{
    const QByteArray before = SetFileBytes(Set, Unwritable::Fail);
    AddOneOfEachKind(Set);
    AddElement<Card>(Set);
    AddOwnType(Set, {"QUEST", {}, {}, {}, 0, false});
    AddOwnBack(Set, "own", "own.bmp");
    ChooseDefaultType(Set, 13);
    Set.LastCardBack = 5;
    Set.LastBackground = "ground.bmp";
    InitSet(Set);
    EXPECT_EQ(Set.Cards.Current, 1);
    EXPECT_EQ(Set.LargeCards.Current, 0);
    EXPECT_EQ(Set.Characters.Current, 0);
    EXPECT_EQ(Set.NewCardBacks.Count(), 1);
    Set.NewCardBacks.Resize(0);
    EXPECT_EQ(SetFileBytes(Set, Unwritable::Fail), before);
}

TEST_F(SetLifecycle, TheVocabularyMatchesThePrintedGame)
{
    const QStringList types =
        QString("ENEMY-|Alien|-ENEMY|Alien|2;ENEMY-|Animal|-ENEMY|Animal|2;ENEMY-|Dragon|-ENEMY|Dragon|2;"
                "ENEMY-Fey||Fey-ENEMY||2;ENEMY-|Monster|-ENEMY|Monster|2;ENEMY-|Spirit|-ENEMY|Spirit|3;"
                "EVENT||EVENT||1;EVENT-Law||Law-EVENT||1;FOLLOWER||FOLLOWER||5;OBJECT||OBJECT||5;"
                "OBJECT-|Magic|-OBJECT|Magic|5;PLACE||PLACE||6;SPELL||SPELL||-1;STRANGER||STRANGER||4;"
                "ENEMY-Troll||Troll-ENEMY||2")
            .split(';');
    ASSERT_EQ(Set.CardTypes.Count(), types.size());
    for (int row = 1; row <= Set.CardTypes.Count(); ++row) {
        const CardType& type = Set.CardTypes[row];
        const QString number = QString::number(type.Number);
        EXPECT_EQ(
            QStringList({type.Name, type.SubName, type.ReversedName, type.ReversedSubName, number}).join('|'),
            types[row - 1]);
        EXPECT_TRUE(type.BuiltIn) << row;
    }
    EXPECT_EQ(TypeListEntry(Set.CardTypes[2]), "ENEMY-Animal");
    for (const int16 row : {int16{1}, Set.CardTypes.Count()}) {
        EXPECT_TRUE(TypeCardType(Set, FirstCard(), TypeListEntry(Set.CardTypes[row]))) << row;
        EXPECT_EQ(FirstCard().TypeIndex, row);
    }
    ASSERT_EQ(Set.CardBacks.Count(), 27);
    for (const auto& [row, name] : {std::pair{1, "Adventure"}, {14, "Mystic Brew"}, {27, "Blank"}})
        EXPECT_EQ(Set.CardBacks[row].Name, name);
    for (int row = 1; row <= Set.CardBacks.Count(); ++row)
        EXPECT_TRUE(Set.CardBacks[row].BuiltIn) << row;
    EXPECT_EQ(StartAreas().size(), 87);
    EXPECT_EQ(StartAreas()[33], "CITY-HIGH TEMPLE");
    EXPECT_TRUE(StartAreas().contains("CITY-SPEAKERS’ CORNER"));
    EXPECT_EQ(StartAreas().last(), "TIMESCAPE-SENTINEL OUTPOST");
    EXPECT_EQ(AttributeValues().size(), 20);
    EXPECT_EQ(CharacterBackNames().last(), "User defined");
}

} // namespace deckforge
