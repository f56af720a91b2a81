// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardKind.h"

#include <QUndoCommand>
#include <optional>
#include <tuple>
#include <vector>

namespace deckforge {

/// What an edit can change: the current record of a kind, the settings of the set, or anything.
enum class EditScope { Card, LargeCard, Character, NewCardBack, Settings, Anything };

[[nodiscard]] constexpr EditScope ScopeOf(CardKind kind)
{
    return static_cast<EditScope>(kind);
}

/// Consecutive elements of one list.
template <class Element>
struct ElementRun {
    int First = 0; ///< index of the first element; 0 if the edit cannot change the list
    std::vector<Element> Elements;
    int16 Current = 0; ///< current index, for lists of records

    friend bool operator==(const ElementRun& a, const ElementRun& b) { return a.Elements == b.Elements; }
};

/// Snapshot of what an edit can change.
struct SetPart {
    SetPart(const CardSet& set, EditScope scope);

    [[nodiscard]] bool operator==(const SetPart& other) const
    {
        return Header == other.Header && NewCards == other.NewCards && Lists == other.Lists;
    }

    SetHeader Header;
    NewCardValues NewCards;
    std::optional<SetFile> File;
    std::tuple<ElementRun<CardType>, ElementRun<CardBack>, ElementRun<Card>, ElementRun<LargeCard>,
               ElementRun<Character>, ElementRun<NewCardBack>>
        Lists;
};

/// Undoes and redoes one edit. Keeps only the elements that differ; their texts are shared, not copied.
///
/// Consecutive edits with the same name and `visit` merge: typing into a field is one step until another
/// control gets the focus.
class SetStep final : public QUndoCommand {
public:
    SetStep(const QString& name, CardSet& set, SetPart before, SetPart after, int visit);

    void undo() override { Apply(m_after, m_before); }
    void redo() override;
    [[nodiscard]] int id() const override { return 1; } // all steps may merge
    bool mergeWith(const QUndoCommand* next) override;

    /// Whether the edit changed nothing.
    [[nodiscard]] bool IsEmpty() const { return m_before == m_after; }
    /// The kind whose records changed, whose tab is to be shown; none if no kind or several did.
    [[nodiscard]] std::optional<CardKind> Kind() const;
    /// Throws if the changed elements cannot be written to a set file.
    void CheckSavable() const;

private:
    void Apply(const SetPart& from, const SetPart& to);

    CardSet& m_set;
    SetPart m_before;
    SetPart m_after;
    int m_visit;
    bool m_isNew = true; ///< the edit is done already when QUndoStack::push() calls redo()
};

} // namespace deckforge
