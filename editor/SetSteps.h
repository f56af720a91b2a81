#pragma once

#include "core/CardKind.h"

#include <QUndoCommand>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace deckforge {

// The undo steps of a set. A step keeps the records it changed and nothing else; texts are shared, not
// copied.

/// Where a step changed the set: the tab to show after it was undone or redone; none for the settings.
using ChangedKind = std::optional<CardKind>;

/// The current record of its type; of SetHeader the one of the set.
template <class Record, class Set>
[[nodiscard]] auto& CurrentRecordOf(Set& set)
{
    if constexpr (std::is_same_v<Record, SetHeader>)
        return (set.Header);
    else
        return ListOf<Record>(set)[ListOf<Record>(set).Current];
}

template <class Record>
[[nodiscard]] ChangedKind ChangedKindOf()
{
    if constexpr (std::is_same_v<Record, SetHeader>)
        return std::nullopt;
    else
        return KindOf<Record>;
}

/// A step is made after its change, so that the first redo, which the stack asks for, does nothing.
class SetStep : public QUndoCommand {
public:
    SetStep(const QString& name, ChangedKind kind) : QUndoCommand(name), Kind(kind) {}

    void redo() final
    {
        if (!std::exchange(m_isNew, false))
            DoAgain();
    }

    const ChangedKind Kind;

private:
    virtual void DoAgain() = 0;

    bool m_isNew = true;
};

/// Changes one record: a field or a gesture. Steps of the same `visit` merge: what is typed into a field
/// while it is visited is one step.
template <class Record>
class RecordStep final : public SetStep {
public:
    RecordStep(const QString& name, CardSet& set, Record before, int visit)
        : SetStep(name, ChangedKindOf<Record>()), m_set(set), m_index(IndexIn(set)),
          m_before(std::move(before)), m_after(CurrentRecordOf<Record>(set)), m_visit(visit)
    {
    }

    void undo() override { Put(m_before); }
    [[nodiscard]] int id() const override { return Kind ? static_cast<int>(*Kind) : settingsId; }

    bool mergeWith(const QUndoCommand* next) override
    {
        const auto& other = *static_cast<const RecordStep*>(next); // the same id is the same type
        if (other.m_visit != m_visit || other.m_index != m_index || other.text() != text())
            return false;
        m_after = other.m_after;
        setObsolete(m_before == m_after);
        return true;
    }

private:
    static constexpr int settingsId = 100;

    void DoAgain() override { Put(m_after); }

    static int16 IndexIn(const CardSet& set)
    {
        if constexpr (std::is_same_v<Record, SetHeader>)
            return 0;
        else
            return ListOf<Record>(set).Current;
    }

    void Put(const Record& record)
    {
        if constexpr (std::is_same_v<Record, SetHeader>) {
            const QString fileName = m_set.Header.FileName; // of a save since
            m_set.Header = record;
            m_set.Header.FileName = fileName;
        } else {
            ListOf<Record>(m_set).Current = m_index;
            CurrentRecordOf<Record>(m_set) = record;
        }
    }

    CardSet& m_set;
    int16 m_index;
    Record m_before;
    Record m_after;
    int m_visit;
};

/// A run of elements that takes the place of another.
template <class Element>
struct Splice {
    int First = 1;
    std::vector<Element> Before;
    std::vector<Element> After;
};

/// What a command or a dialog changed of the set.
class SetDifference {
public:
    SetDifference(const CardSet& before, const CardSet& after);

    [[nodiscard]] bool IsEmpty() const;
    /// The kind whose cards changed; none if it is no kind or several.
    [[nodiscard]] ChangedKind Kind() const;

    /// Fails as writing the set would fail at what is new.
    void CheckSavable() const;

    void Undo(CardSet& set) const { Apply(set, Direction::Back); }
    void Redo(CardSet& set) const { Apply(set, Direction::Forth); }

private:
    enum class Direction { Back, Forth };

    template <class E>
    struct ListDifference {
        using Element = E;
        std::vector<Splice<Element>> Splices;
        int16 CurrentBefore = 0; ///< of a list of records
        int16 CurrentAfter = 0;
    };
    template <class Element>
    static ListDifference<Element> Compare(const CardSet& before, const CardSet& after);
    template <class Function>
    void ForEachList(Function&& function) const;
    void Apply(CardSet& set, Direction direction) const;

    /// What is no list. The file of the set belongs to it only where a step brought another set: saving is no
    /// step and is not undone.
    struct Values {
        explicit Values(const CardSet& set) : Header(set.Header), NewCards(set), File(set.File) {}
        [[nodiscard]] bool IsSame(const Values& other) const
        {
            return Header == other.Header && NewCards == other.NewCards;
        }

        SetHeader Header;
        NewCardValues NewCards;
        std::optional<SetFile> File;
    };
    static void Apply(CardSet& set, const Values& to, const Values& from);

    Values m_before;
    Values m_after;
    std::tuple<ListDifference<CardType>, ListDifference<CardBack>, ListDifference<Card>,
               ListDifference<LargeCard>, ListDifference<Character>, ListDifference<NewCardBack>>
        m_lists;
};

/// Changes anything: a command or a dialog.
class DifferenceStep final : public SetStep {
public:
    DifferenceStep(const QString& name, CardSet& set, SetDifference difference)
        : SetStep(name, difference.Kind()), m_set(set), m_difference(std::move(difference))
    {
    }

    void undo() override { m_difference.Undo(m_set); }

private:
    void DoAgain() override { m_difference.Redo(m_set); }

    CardSet& m_set;
    SetDifference m_difference;
};

} // namespace deckforge
