// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/SetSteps.h"

#include "files/SetFields.h"
#include "files/SetWriter.h"

#include <algorithm>
#include <utility>

namespace deckforge {

namespace {

template <class Element>
constexpr bool IsRecord = !std::is_same_v<Element, CardType> && !std::is_same_v<Element, CardBack>;

template <class Part, class Function>
void ForEachRun(Part& part, Function&& function)
{
    std::apply([&](auto&... run) { (function(run), ...); }, part.Lists);
}

/// Calls the function with both parts' runs of each list.
template <class Part, class Function>
void ForEachPair(Part& a, Part& b, Function&& function)
{
    ForEachRun(a, [&](auto& run) { function(run, std::get<std::decay_t<decltype(run)>>(b.Lists)); });
}

template <class Element>
std::vector<Element> Elements(const OneBasedArray<Element>& list, int first, int end)
{
    std::vector<Element> elements;
    elements.reserve(static_cast<std::size_t>(end - first));
    for (int i = first; i < end; ++i)
        elements.push_back(list[i]);
    return elements;
}

/// Removes equal elements from both ends.
template <class Element>
void Trim(ElementRun<Element>& before, ElementRun<Element>& after)
{
    auto& a = before.Elements;
    auto& b = after.Elements;
    const auto [aTail, bTail] = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend());
    a.erase(aTail.base(), a.end());
    b.erase(bTail.base(), b.end());
    const auto [aHead, bHead] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    before.First += static_cast<int>(aHead - a.begin());
    after.First = before.First;
    a.erase(a.begin(), aHead);
    b.erase(b.begin(), bHead);
}

template <class Element>
void Replace(OneBasedArray<Element>& list, int first, std::size_t count, const std::vector<Element>& with)
{
    const std::vector<Element> rest = Elements(list, first + static_cast<int>(count), list.Count() + 1);
    list.Resize(static_cast<int16>(static_cast<std::size_t>(first) - 1 + with.size() + rest.size()));
    for (const auto* elements : {&with, &rest}) {
        for (const Element& element : *elements)
            list[first++] = element;
    }
}

} // namespace

SetPart::SetPart(const CardSet& set, EditScope scope) : Header(set.Header), NewCards(set), File(set.File)
{
    ForEachRun(*this, [&]<class Element>(ElementRun<Element>& run) {
        const auto& list = ListOf<Element>(set);
        if (scope == EditScope::Anything) {
            run.First = 1;
            run.Elements = Elements(list, 1, list.Count() + 1);
        }
        if constexpr (IsRecord<Element>) {
            run.Current = list.Current;
            if (scope == ScopeOf(KindOf<Element>)) {
                run.First = list.Current;
                run.Elements = {list[list.Current]};
            }
        }
    });
}

SetStep::SetStep(const QString& name, CardSet& set, SetPart before, SetPart after, int visit)
    : QUndoCommand(name), m_set(set), m_before(std::move(before)), m_after(std::move(after)), m_visit(visit)
{
    ForEachPair(m_before, m_after, [](auto& was, auto& is) { Trim(was, is); });
}

void SetStep::redo()
{
    if (!std::exchange(m_isNew, false))
        Apply(m_before, m_after);
}

bool SetStep::mergeWith(const QUndoCommand* next)
{
    const auto& other = *static_cast<const SetStep*>(next); // the stack has no others
    if (other.m_visit != m_visit || other.text() != text() || other.Kind() != Kind())
        return false;
    m_after = other.m_after;
    setObsolete(IsEmpty());
    return true;
}

std::optional<CardKind> SetStep::Kind() const
{
    std::vector<CardKind> changed;
    ForEachPair(m_before, m_after,
                [&]<class Element>(const ElementRun<Element>& was, const ElementRun<Element>& is) {
                    if (IsRecord<Element> && !(was == is))
                        changed.push_back(KindOf<Element>);
                });
    return changed.size() == 1 ? std::optional(changed.front()) : std::nullopt;
}

void SetStep::CheckSavable() const
{
    SetWriter out(Unwritable::Fail);
    if (!(m_before.Header == m_after.Header))
        setFile::Fields(out, m_after.Header);
    setFile::Fields(out, m_after.NewCards);
    ForEachRun(m_after, [&](const auto& run) {
        for (const auto& element : run.Elements)
            setFile::Fields(out, element);
    });
}

void SetStep::Apply(const SetPart& from, const SetPart& to)
{
    // Undo restores path and file only if the edit replaced the set: saving is not undone.
    const QString fileName = m_set.Header.FileName;
    if (!(to.Header == from.Header))
        m_set.Header = to.Header;
    if (to.Header.FileName == from.Header.FileName)
        m_set.Header.FileName = fileName;
    const auto pathOf = [](const SetPart& part) { return part.File ? part.File->Path : QString(); };
    if (pathOf(to) != pathOf(from))
        m_set.File = to.File;
    static_cast<NewCardValues&>(m_set) = to.NewCards;
    ForEachPair(from, to, [&]<class Element>(const ElementRun<Element>& old, const ElementRun<Element>& run) {
        if (run.First == 0)
            return;
        auto& list = ListOf<Element>(m_set);
        Replace(list, run.First, old.Elements.size(), run.Elements);
        if constexpr (IsRecord<Element>)
            list.Current = run.Current;
    });
}

} // namespace deckforge
