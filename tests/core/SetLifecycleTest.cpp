#include "core/Vocabulary.h"
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
    EXPECT_EQ(User.LastTold(), "Confirm delete|Are you sure you want to delete the card \"CARD 3\"?");
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

TEST_F(SetLifecycle, ThereIsNoCardBehindTheLastNumber)
{
    Set.Cards.Resize(32767);
    EXPECT_EQ(FailureOf([&] { AddElement<Card>(Set); }), 6);
    EXPECT_EQ(Set.Cards.Count(), 32767);
    EXPECT_EQ(FailureOf([&] { (void)Set.Cards[32768]; }), 9);
    EXPECT_EQ(FailureOf([&] { (void)Set.Cards[-1]; }), 9);
}

TEST_F(SetLifecycle, TheVocabularyIsThatOfThePrintedGame)
{
    EXPECT_EQ(TypeListEntry(Set.CardTypes[4]), "ENEMY-Fey");
    EXPECT_EQ(TypeListEntry(Set.CardTypes[15]), "ENEMY-Troll");
    EXPECT_EQ(StartAreas().size(), 87);
    EXPECT_EQ(StartAreas()[33], "CITY-HIGH TEMPLE");
    EXPECT_TRUE(StartAreas().contains("CITY-SPEAKERS’ CORNER"));
    EXPECT_EQ(StartAreas().last(), "TIMESCAPE-SENTINEL OUTPOST");
    EXPECT_EQ(AttributeValues().size(), 20);
    EXPECT_EQ(CharacterBackNames().last(), "User defined");
}

} // namespace deckforge
