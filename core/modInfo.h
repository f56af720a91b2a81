#pragma once

#include "core/CardSet.h"
#include "platform/Numbers.h"
#include "platform/UserPort.h"

namespace deckforge {

// The life of the set in memory. Nothing here touches a file.

/// Puts back what holds for the whole set; cards and tables stay.
void NewSet(CardSet& set);

/// The thirteen fonts as a new set has them.
void SetDefaultFont(SetHeader& header);

/// Makes the set a new one with one standard card. User-designed backs of the set before stay in it.
void InitSet(CardSet& set);

// What a new element of each kind holds; n goes into its name. Error 9 when there is no element n.
void InitCard(CardSet& set, int16 n);
void InitLargeCard(CardSet& set, int16 n);
void InitCharacter(CardSet& set, int16 n);
void InitNewCardBack(CardSet& set, int16 n);

/// Where a kind of card lies in the set, and what is peculiar to it.
template <class Record>
struct Kind {
    int16 CardSet::*Count;
    int16 CardSet::*Current;
    OneBasedArray<Record> CardSet::*Records;
    QString Record::*Name;
    void (*Init)(CardSet&, int16);
    const char* DeleteQuestion; ///< goes on with the name in quotes
    bool TellsOfLast;           ///< says why the last one stays; the other kinds stay silent
    Record CardSet::*Clip;      ///< the copied element; null where nothing is copied
    const char* CopyName;       ///< what the user is told that is copied
};

inline constexpr Kind<Card> StandardKind = {&CardSet::CardCount,
                                            &CardSet::CurrentCard,
                                            &CardSet::Cards,
                                            &Card::Title,
                                            &InitCard,
                                            "Are you sure you want to delete the card ",
                                            true,
                                            &CardSet::ClipCard,
                                            "card"};
inline constexpr Kind<LargeCard> LargeKind = {&CardSet::LargeCardCount,
                                              &CardSet::CurrentLargeCard,
                                              &CardSet::LargeCards,
                                              &LargeCard::Title,
                                              &InitLargeCard,
                                              "Are you sure you want to delete the card ",
                                              false,
                                              &CardSet::ClipLargeCard,
                                              "large card"};
inline constexpr Kind<Character> CharacterKind = {&CardSet::CharacterCount,
                                                  &CardSet::CurrentCharacter,
                                                  &CardSet::Characters,
                                                  &Character::Name,
                                                  &InitCharacter,
                                                  "Are you sure you want to delete the character ",
                                                  false,
                                                  &CardSet::ClipCharacter,
                                                  "character card"};
inline constexpr Kind<NewCardBack> NewBackKind = {&CardSet::NewCardBackCount,
                                                  &CardSet::CurrentNewCardBack,
                                                  &CardSet::NewCardBacks,
                                                  &NewCardBack::Name,
                                                  &InitNewCardBack,
                                                  "Are you sure you want to delete the card back ",
                                                  false,
                                                  nullptr,
                                                  nullptr};

/// Adds an element at the end and makes it the current one. Error 6 past 32767; the set is then as before.
template <class Record>
void AddElement(CardSet& set, const Kind<Record>& kind)
{
    const int16 count = CheckedAdd(set.*kind.Count, 1);
    (set.*kind.Records).Resize(count);
    set.*kind.Count = count;
    kind.Init(set, count);
    set.*kind.Current = count;
}

/// Makes the first element of a kind that the set has none of yet.
template <class Record>
void MakeFirstElement(CardSet& set, const Kind<Record>& kind)
{
    (set.*kind.Records).Recreate(1);
    set.*kind.Count = 1;
    set.*kind.Current = 1;
    kind.Init(set, 1);
}

/// Whether the current element may go: it is not the only one, and the user says yes.
[[nodiscard]] bool MayDelete(UserPort& user, int16 count, const char* question, const QString& name,
                             bool tellsOfLast);

/// Deletes the current element after a question. The next one moves to its index; behind the last one the
/// index goes down by one. Gives whether the element is gone.
template <class Record>
bool DeleteElement(CardSet& set, UserPort& user, const Kind<Record>& kind)
{
    const int16 current = set.*kind.Current;
    const QString name = (set.*kind.Records)[current].*kind.Name;
    if (!MayDelete(user, set.*kind.Count, kind.DeleteQuestion, name, kind.TellsOfLast))
        return false;
    (set.*kind.Records).Remove(current);
    if (current == set.*kind.Count)
        set.*kind.Current = CheckedAdd(current, -1);
    set.*kind.Count = CheckedAdd(set.*kind.Count, -1);
    return true;
}

/// Error 9 where the set has no element of the kind.
template <class Record>
Record& CurrentElement(CardSet& set, const Kind<Record>& kind)
{
    if (set.*kind.Current < 1)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return (set.*kind.Records)[set.*kind.Current];
}

/// Says that an element of that name is copied.
void TellCopied(UserPort& user, const char* copyName);

/// Keeps a twin of the current element. It stays when the set is replaced, so that cards go from set to set.
template <class Record>
void CopyElement(CardSet& set, UserPort& user, const Kind<Record>& kind)
{
    set.*kind.Clip = CurrentElement(set, kind);
    TellCopied(user, kind.CopyName);
}

/// Writes the twin over the current element: an empty one, if nothing of the kind was copied.
template <class Record>
void PasteElement(CardSet& set, const Kind<Record>& kind)
{
    CurrentElement(set, kind) = set.*kind.Clip;
}

/// "3 (12)": where the current element stands.
[[nodiscard]] QString PositionText(int16 index, int16 count);

} // namespace deckforge
