#pragma once

#include "editor/SetSteps.h"
#include "files/Rescue.h"
#include "files/modFile.h"

#include <QObject>
#include <QUndoStack>
#include <functional>

namespace deckforge {

/// The set that the window edits: the only way to change it, the undo steps, the file, and the rescue file.
///
/// What a change is shown by is up to the caller; after Undo and Redo the signal Restored says so.
class SetDocument final : public QObject {
    Q_OBJECT

public:
    /// Brings a changed set into memory: a new one, or the one read from a file. Returns whether it is there.
    using Bring = std::function<bool(CardSet&)>;

    /// The rescue file is never older than renewRescueAfter when the set is changed.
    SetDocument(CardSet& set, UserPort& user, std::chrono::milliseconds renewRescueAfter);

    [[nodiscard]] const CardSet& Set() const { return m_set; }

    // Every change of the set goes through Edit and becomes an undo step with that name, even if the change
    // throws halfway. An edit that changes nothing makes no step.

    /// Changes only what the scope says. Edits of the same name merge until EndVisit(), except for those of
    /// anything.
    void Edit(const QString& name, EditScope scope, const std::function<void(CardSet&)>& change);

    /// Changes anything.
    void Edit(const QString& name, const std::function<void(CardSet&)>& change)
    {
        Edit(name, EditScope::Anything, change);
    }

    /// Makes another record the current one; no step.
    void GoTo(CardKind kind, int16 index);

    /// The next edit starts a new step: another control got the focus, or another gesture begins.
    void EndVisit() { ++m_visit; }

    void Undo();
    void Redo();
    /// For the names of steps and whether there are any.
    [[nodiscard]] const QUndoStack& Steps() const { return m_steps; }

    // Files. The questions and boxes are those of the commands.

    /// Asks where to save, always.
    SaveResult Save();
    /// "Save current set?"; a save that failed counts as Cancel, one that was cancelled does not.
    [[nodiscard]] Answer AskToSave(BoxButtons buttons);
    /// Replaces the set after rescuing unsaved changes. Without the rescue the set stays. Returns whether the
    /// new one is there; `path` is its file, empty if it is new.
    bool Replace(const QString& name, const QString& path, const Bring& bring);
    /// Whether the program may end: unsaved changes are rescued. Why they could not be is shown in a box.
    [[nodiscard]] bool Leave();
    /// The set is in the file it was read from or is new.
    void Keep(const QString& folder = {});

    void RescueAtTheEnd() noexcept { m_work.RescueAtTheEnd(m_set); }
    /// Notes a set that an earlier run rescued.
    void NoteEarlierRescue();

Q_SIGNALS:
    /// A step was undone or redone: all that shows the set is renewed, at the tab of the kind.
    void Restored(const std::optional<deckforge::CardKind>& kind);
    /// A line for the status bar, behind the one that is there.
    void Noted(const QString& note);
    /// Why no file can hold the set; empty if one can.
    void UnsavableBecause(const QString& reason);

private:
    void Push(const QString& name, EditScope scope, SetPart before);
    void Restore(void (QUndoStack::*step)(), int index);
    [[nodiscard]] QString WhyUnsavable() const;
    void ShowUnsavable(const QString& reason);
    void AfterChange();
    [[nodiscard]] bool Leave(std::optional<QString>& rescued, const QString& toOpen = {});

    CardSet& m_set;
    UserPort& m_user;
    UnsavedWork m_work;
    QUndoStack m_steps;
    int m_visit = 0;
    bool m_isUnsavable = false; ///< as far as it was checked
};

} // namespace deckforge
