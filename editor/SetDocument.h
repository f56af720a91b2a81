// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "commands/SetCommands.h"
#include "editor/SetSteps.h"
#include "files/Rescue.h"
#include "files/modFile.h"

#include <QObject>
#include <QUndoStack>
#include <functional>

namespace deckforge {

/// The set that the window edits, with its undo steps, its file and its rescue file.
///
/// Does not update the display; after undo and redo it emits Restored().
class SetDocument final : public QObject {
    Q_OBJECT

public:
    /// Fills the set anew, for example from a file. Returns whether it did.
    using Loader = std::function<bool(CardSet&)>;

    /// After a change the rescue file is at most `renewRescueAfter` old.
    SetDocument(CardSet& set, UserPort& user, std::chrono::milliseconds renewRescueAfter);

    [[nodiscard]] const CardSet& Set() const { return m_set; }

    // Every change of the set goes through Edit and becomes an undo step with that name, even if the change
    // throws halfway. An edit that changes nothing makes no step.

    /// Changes only what `scope` says. Edits with the same name and scope merge until EndVisit(), except
    /// those with EditScope::Anything.
    void Edit(const QString& name, EditScope scope, const std::function<void(CardSet&)>& change);

    /// Changes anything.
    void Edit(const QString& name, const std::function<void(CardSet&)>& change)
    {
        Edit(name, EditScope::Anything, change);
    }

    /// Makes another record the current one. Not an undo step.
    void GoTo(CardKind kind, int16 index);

    /// The next edit starts a new step: another control got the focus, or a new gesture begins.
    void EndVisit() { ++m_visit; }

    void Undo();
    void Redo();
    /// For tests and the names of the steps.
    [[nodiscard]] const QUndoStack& Steps() const { return m_steps; }

    // Files. These functions show the questions and messages of the commands.

    /// Always asks for the file.
    SaveResult Save();
    /// Asks "Save current set?" A failed save returns Cancel; a cancelled file dialog does not.
    [[nodiscard]] Answer AskToSave(BoxButtons buttons);
    /// Replaces the set after unsaved changes were rescued; if that fails, the set stays. `path` is the file
    /// of the new set, empty if there is none. Returns whether the set was replaced.
    bool Replace(const QString& name, const QString& path, const Loader& load);
    /// Whether the program may exit: there are no unsaved changes, or they are rescued. If they cannot be, an
    /// error box says why.
    [[nodiscard]] bool Leave();
    /// Marks the set as unchanged: it was saved, read or created.
    void Keep(const QString& folder = {});

    void RescueAtExit() noexcept { m_work.RescueAtExit(m_set); }
    /// Reports a set rescued by an earlier run.
    void NoteEarlierRescue();

Q_SIGNALS:
    /// A step was undone or redone. Update everything that shows the set, and select the tab of the kind.
    void Restored(const std::optional<deckforge::CardKind>& kind);
    /// Text to append to the status bar.
    void Noted(const QString& note);
    /// Why the set cannot be saved; empty if it can.
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
    bool m_isUnsavable = false; ///< by the last check
};

} // namespace deckforge
