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

/// Neighbouring elements of one list.
template <class Element>
struct ElementRun {
    int First = 0; ///< index of the first element; 0 if the edit does not touch the list
    std::vector<Element> Elements;
    int16 Current = 0; ///< of a list of records

    friend bool operator==(const ElementRun& a, const ElementRun& b) { return a.Elements == b.Elements; }
};

/// What an edit can change, as it was before or after it.
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

    /// Whether nothing has changed.
    [[nodiscard]] bool IsEmpty() const { return m_before == m_after; }
    /// The kind whose records changed: the tab to show; none if no kind or several did.
    [[nodiscard]] std::optional<CardKind> Kind() const;
    /// Fails as writing the set would fail at what has changed.
    void CheckSavable() const;

private:
    void Apply(const SetPart& from, const SetPart& to);

    CardSet& m_set;
    SetPart m_before;
    SetPart m_after;
    int m_visit;
    bool m_isNew = true; ///< the edit is done, but QUndoStack::push() asks for a redo
};

} // namespace deckforge
