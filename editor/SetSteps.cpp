#include "editor/SetSteps.h"

#include "files/modFile.h"

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
SetDifference::ListDifference<Element> SetDifference::Compare(const CardSet& before, const CardSet& after)
{
    const auto& was = ListOf<Element>(before);
    const auto& is = ListOf<Element>(after);
    ListDifference<Element> difference;
    if (was.Count() == is.Count())
        difference.Splices = DifferingRuns<Element>(was, is);
    else
        difference.Splices.push_back(DifferingMiddle<Element>(was, is));
    if constexpr (requires { was.Current; }) {
        difference.CurrentBefore = was.Current;
        difference.CurrentAfter = is.Current;
    }
    return difference;
}

SetDifference::SetDifference(const CardSet& before, const CardSet& after)
    : m_before(before), m_after(after),
      m_lists(Compare<CardType>(before, after), Compare<CardBack>(before, after),
              Compare<Card>(before, after), Compare<LargeCard>(before, after),
              Compare<Character>(before, after), Compare<NewCardBack>(before, after))
{
}

template <class Function>
void SetDifference::ForEachList(Function&& function) const
{
    std::apply([&](const auto&... difference) { (function(difference), ...); }, m_lists);
}

bool SetDifference::IsEmpty() const
{
    bool isEmpty = m_before.IsSame(m_after);
    ForEachList([&](const auto& difference) { isEmpty = isEmpty && difference.Splices.empty(); });
    return isEmpty;
}

ChangedKind SetDifference::Kind() const
{
    std::vector<CardKind> changed;
    ForEachList([&](const auto& difference) {
        using Element = typename std::decay_t<decltype(difference)>::Element;
        constexpr bool isCard = requires(CardSet & set)
        {
            ListOf<Element>(set).Current;
        };
        if constexpr (isCard) {
            if (!difference.Splices.empty())
                changed.push_back(KindOf<Element>);
        }
    });
    return changed.size() == 1 ? ChangedKind(changed.front()) : std::nullopt;
}

void SetDifference::CheckSavable() const
{
    deckforge::CheckSavable(m_after.Header);
    deckforge::CheckSavable(m_after.NewCards);
    ForEachList([](const auto& difference) {
        for (const auto& splice : difference.Splices) {
            for (const auto& element : splice.After)
                deckforge::CheckSavable(element);
        }
    });
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

void SetDifference::Apply(CardSet& set, Direction direction) const
{
    const bool isBack = direction == Direction::Back;
    Apply(set, isBack ? m_before : m_after, isBack ? m_after : m_before);
    ForEachList([&](const auto& difference) {
        auto& list = ListOf<typename std::decay_t<decltype(difference)>::Element>(set);
        for (const auto& splice : difference.Splices) {
            const auto& from = isBack ? splice.After : splice.Before;
            const auto& to = isBack ? splice.Before : splice.After;
            Replace(list, splice.First, from.size(), to);
        }
        if constexpr (requires { list.Current; })
            list.Current = isBack ? difference.CurrentBefore : difference.CurrentAfter;
    });
}

} // namespace deckforge
