#include "editor/SetSteps.h"

#include <algorithm>

namespace deckforge {

namespace {

template <class Element>
std::vector<Element> Part(const OneBasedArray<Element>& array, int first, int end)
{
    std::vector<Element> part;
    for (int i = first; i < end; ++i)
        part.push_back(array[i]);
    return part;
}

/// Of lists of the same length: each run of elements that differ.
template <class Element>
std::vector<Splice<Element>> DifferingRuns(const OneBasedArray<Element>& before,
                                           const OneBasedArray<Element>& after)
{
    std::vector<Splice<Element>> splices;
    const int end = before.Count() + 1;
    for (int first = 1; first < end; ++first) {
        int last = first;
        while (last < end && !(before[last] == after[last]))
            ++last;
        if (last > first)
            splices.push_back({first, Part(before, first, last), Part(after, first, last)});
        first = last;
    }
    return splices;
}

/// Of lists of different length: all between the elements that are the same at both ends.
template <class Element>
Splice<Element> DifferingMiddle(const OneBasedArray<Element>& before, const OneBasedArray<Element>& after)
{
    const int shorter = std::min(before.Count(), after.Count());
    int first = 1;
    while (first <= shorter && before[first] == after[first])
        ++first;
    int same = 0;
    while (first + same <= shorter && before[before.Count() - same] == after[after.Count() - same])
        ++same;
    return {first, Part(before, first, before.Count() + 1 - same),
            Part(after, first, after.Count() + 1 - same)};
}

template <class Element>
void Replace(OneBasedArray<Element>& array, int first, std::size_t count, const std::vector<Element>& with)
{
    std::vector<Element> rest;
    if (with.size() != count) {
        rest = Part(array, first + static_cast<int>(count), array.Count() + 1);
        array.Resize(static_cast<int16>(static_cast<std::size_t>(first) - 1 + with.size() + rest.size()));
    }
    for (const Element& element : with)
        array[first++] = element;
    for (Element& element : rest)
        array[first++] = std::move(element);
}

} // namespace

template <class Element>
SetDifference::ListDifference<Element> SetDifference::Compare(const OneBasedArray<Element>& before,
                                                              const OneBasedArray<Element>& after)
{
    ListDifference<Element> difference;
    if (before.Count() == after.Count())
        difference.Splices = DifferingRuns(before, after);
    else
        difference.Splices.push_back(DifferingMiddle(before, after));
    return difference;
}

template <class Record>
SetDifference::ListDifference<Record> SetDifference::CompareLists(const CardSet& before, const CardSet& after)
{
    const CardList<Record>& was = ListOf<Record>(before);
    const CardList<Record>& is = ListOf<Record>(after);
    ListDifference<Record> difference = Compare<Record>(was, is);
    difference.CurrentBefore = was.Current;
    difference.CurrentAfter = is.Current;
    return difference;
}

SetDifference::SetDifference(const CardSet& before, const CardSet& after)
    : m_before(before), m_after(after), m_types(Compare(before.CardTypes, after.CardTypes)),
      m_backs(Compare(before.CardBacks, after.CardBacks)), m_cards(CompareLists<Card>(before, after)),
      m_largeCards(CompareLists<LargeCard>(before, after)),
      m_characters(CompareLists<Character>(before, after)),
      m_newBacks(CompareLists<NewCardBack>(before, after))
{
}

bool SetDifference::IsEmpty() const
{
    return m_before.IsSame(m_after) && m_types.Splices.empty() && m_backs.Splices.empty() &&
           m_cards.Splices.empty() && m_largeCards.Splices.empty() && m_characters.Splices.empty() &&
           m_newBacks.Splices.empty();
}

ChangedKind SetDifference::Kind() const
{
    const bool changed[] = {!m_cards.Splices.empty(), !m_largeCards.Splices.empty(),
                            !m_characters.Splices.empty(), !m_newBacks.Splices.empty()};
    if (std::count(std::begin(changed), std::end(changed), true) != 1)
        return std::nullopt;
    return static_cast<CardKind>(std::find(std::begin(changed), std::end(changed), true) -
                                 std::begin(changed));
}

template <class Function>
void SetDifference::ForEachList(CardSet& set, Function&& function) const
{
    function(set.CardTypes, m_types);
    function(set.CardBacks, m_backs);
    function(set.Cards, m_cards);
    function(set.LargeCards, m_largeCards);
    function(set.Characters, m_characters);
    function(set.NewCardBacks, m_newBacks);
}

void SetDifference::Apply(CardSet& set, const Values& to, const Values& from)
{
    const QString fileName = set.Header.FileName;
    set.Header = to.Header;
    if (to.Header.FileName == from.Header.FileName)
        set.Header.FileName = fileName; // of a save since
    static_cast<NewCardValues&>(set) = to.NewCards;
    const auto pathOf = [](const Values& values) { return values.File ? values.File->Path : QString(); };
    if (pathOf(to) != pathOf(from))
        set.File = to.File;
}

void SetDifference::Undo(CardSet& set) const
{
    Apply(set, m_before, m_after);
    ForEachList(set, [](auto& list, const auto& difference) {
        for (const auto& splice : difference.Splices)
            Replace(list, splice.First, splice.After.size(), splice.Before);
        if constexpr (requires { list.Current; })
            list.Current = difference.CurrentBefore;
    });
}

void SetDifference::Redo(CardSet& set) const
{
    Apply(set, m_after, m_before);
    ForEachList(set, [](auto& list, const auto& difference) {
        for (const auto& splice : difference.Splices)
            Replace(list, splice.First, splice.Before.size(), splice.After);
        if constexpr (requires { list.Current; })
            list.Current = difference.CurrentAfter;
    });
}

} // namespace deckforge
