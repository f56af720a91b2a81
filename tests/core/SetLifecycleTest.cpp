#include "core/Vocabulary.h"
#include "core/modInfo.h"
#include "platform/Paths.h"
#include "support/Failures.h"
#include "support/ScriptedUser.h"

namespace deckforge {

namespace {

CardSet NewlyMadeSet()
{
    CardSet set;
    InitSet(set);
    return set;
}

} // namespace

TEST(SetLifecycle, ANewSetHasOneCardOfTheUsualType)
{
    const CardSet set = NewlyMadeSet();
    ASSERT_EQ(set.CardCount, 1);
    const Card& card = set.Cards[1];
    EXPECT_EQ(card.Title, QStringLiteral("CARD 1"));
    EXPECT_EQ(card.Type + card.SubType, QStringLiteral("ENEMY-Animal"));
    EXPECT_EQ(card.TypeReversed + card.SubTypeReversed, QStringLiteral("-ENEMYAnimal"));
    EXPECT_EQ(card.Number, QStringLiteral("2"));
    EXPECT_EQ(card.FrameHeight, 105);
    EXPECT_EQ(card.Color, White);
    EXPECT_TRUE(card.Frame && card.ShowPicture && !card.Resize && !card.OneLine);
    EXPECT_EQ(set.Header.SaveTo, ProgramFolder());
    EXPECT_EQ(set.Header.ArtistColor, 0xC0C0C0);
}

TEST(SetLifecycle, ANewSetKeepsTheBacksThatTheUserDesigned)
{
    CardSet set = NewlyMadeSet();
    set.Header.SetName = QStringLiteral("Sea");
    AddElement(set, NewBackKind);
    AddElement(set, LargeKind);
    set.CardTypes.Resize(16);
    set.CardTypeCount = 16;
    InitSet(set);
    EXPECT_EQ(set.NewCardBackCount, 1);
    EXPECT_EQ(set.NewCardBacks[1].BackText, QStringLiteral("Sea"));
    EXPECT_EQ(set.LargeCardCount, 0);
    EXPECT_EQ(set.CardTypeCount, 15);
    EXPECT_EQ(set.CardTypes.LastIndex(), 15);
}

TEST(SetLifecycle, CardsAreNumberedByTheirPlaceAndTitlesCanRepeat)
{
    ScriptedUser user;
    CardSet set = NewlyMadeSet();
    for (int i = 0; i < 3; ++i)
        AddElement(set, StandardKind);
    EXPECT_EQ(set.CurrentCard, 4);
    set.CurrentCard = 3;
    user.WillAnswer(Answer::Yes);
    EXPECT_TRUE(DeleteElement(set, user, StandardKind));
    EXPECT_EQ(set.CurrentCard, 3);
    EXPECT_EQ(set.Cards[3].Title, QStringLiteral("CARD 4"));
    AddElement(set, StandardKind);
    EXPECT_EQ(set.Cards[4].Title, QStringLiteral("CARD 4"));
    EXPECT_EQ(PositionText(set.CurrentCard, set.CardCount), QStringLiteral("4 (4)"));
}

TEST(SetLifecycle, DeletingAsksByNameAndLeavesTheCardBeforeTheLastOne)
{
    ScriptedUser user;
    CardSet set = NewlyMadeSet();
    AddElement(set, StandardKind);
    user.WillAnswer(Answer::No);
    EXPECT_FALSE(DeleteElement(set, user, StandardKind));
    EXPECT_EQ(set.CardCount, 2);
    user.WillAnswer(Answer::Yes);
    EXPECT_TRUE(DeleteElement(set, user, StandardKind));
    EXPECT_EQ(set.CurrentCard, 1);
    EXPECT_EQ(user.LastBox().Title, QStringLiteral("Confirm delete"));
    EXPECT_EQ(user.LastBox().Text, QStringLiteral("Are you sure you want to delete the card \"CARD 2\"?"));
    EXPECT_EQ(user.LastBox().Style, BoxStyle::Question);
}

TEST(SetLifecycle, TheLastOneStaysAndOnlyTheStandardCardSaysWhy)
{
    ScriptedUser user;
    CardSet set = NewlyMadeSet();
    AddElement(set, CharacterKind);
    EXPECT_FALSE(DeleteElement(set, user, CharacterKind));
    EXPECT_TRUE(user.Boxes.empty());
    EXPECT_FALSE(DeleteElement(set, user, StandardKind));
    EXPECT_EQ(user.BoxTexts(), std::vector<QString>{QStringLiteral(
                                   "|You have only one card in your set. This can't be deleted.")});
}

TEST(SetLifecycle, ThereIsNoCardBehindTheLastNumber)
{
    CardSet set = NewlyMadeSet();
    set.Cards.Resize(32767);
    set.CardCount = 32767;
    EXPECT_EQ(FailureOf([&] { AddElement(set, StandardKind); }), 6);
    EXPECT_EQ(set.CardCount, 32767);
    EXPECT_EQ(FailureOf([&] { (void)set.Cards[32768]; }), 9);
    EXPECT_EQ(FailureOf([&] { (void)set.Cards[-1]; }), 9);
}

TEST(Vocabulary, HoldsWhatThePrintedGameHas)
{
    CardSet set = NewlyMadeSet();
    EXPECT_EQ(TypeListEntry(set.CardTypes[4]), QStringLiteral("ENEMY-Fey"));
    EXPECT_EQ(TypeListEntry(set.CardTypes[15]), QStringLiteral("ENEMY-Troll"));
    EXPECT_EQ(set.CardTypes[13].Number, -1);
    EXPECT_EQ(set.CardBacks[26].Name, QStringLiteral("Warlock's Maze"));
    EXPECT_EQ(set.CardBacks[27].Name, QStringLiteral("Blank"));
    EXPECT_EQ(StartAreas().size(), 87);
    EXPECT_EQ(StartAreas()[0], QStringLiteral("MAIN-VILLAGE"));
    EXPECT_EQ(StartAreas()[33], QStringLiteral("CITY-HIGH TEMPLE"));
    EXPECT_TRUE(StartAreas().contains(QStringLiteral("CITY-SPEAKERS’ CORNER")));
    EXPECT_TRUE(StartAreas().contains(QStringLiteral("MAIN-WARLOCK'S CAVE")));
    EXPECT_EQ(StartAreas().last(), QStringLiteral("TIMESCAPE-SENTINEL OUTPOST"));
    EXPECT_EQ(AttributeValues().size(), 20);
    EXPECT_EQ(CharacterBackNames().last(), QStringLiteral("User defined"));
    EXPECT_EQ(FailureOf([] { (void)GetCardType(16); }), 9);
}

} // namespace deckforge
