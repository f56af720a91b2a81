#pragma once

#include "commands/SetCommands.h"
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

    // Every change of the set goes through one of these and becomes a step with that name, also if the change
    // throws halfway. What changes nothing makes no step.

    /// Sets a field of the current record. While a control is visited, its changes are one step.
    template <class Record, class Value>
    void Edit(const QString& name, Value Record::*field, const Value& value)
    {
        Edit<Record>(name, [&](Record& record) { record.*field = value; });
    }

    /// Changes the current record: change(Record&).
    template <class Record, class Change>
    void Edit(const QString& name, Change&& change)
    {
        Record before = CurrentRecordOf<Record>(m_set);
        Changing([&] { change(CurrentRecordOf<Record>(m_set)); },
                 [&] {
                     const Record& after = CurrentRecordOf<Record>(m_set);
                     if (before == after)
                         return;
                     Push(new RecordStep<Record>(name, m_set, std::move(before), m_visit));
                     CheckSavable([&] { deckforge::CheckSavable(after); });
                 });
    }

    /// Changes anything: a command, a run or a dialog. change(CardSet&).
    template <class Change>
    void Edit(const QString& name, Change&& change)
    {
        const CardSet before = m_set;
        Changing([&] { change(m_set); }, [&] { PushDifference(name, before); });
    }

    /// Makes another record the current one; no step.
    template <class Record>
    void GoTo(int16 index)
    {
        EndVisit();
        ListOf<Record>(m_set).Current = index;
    }

    /// Copies the current record and reports it; no step.
    template <class Record>
    void Copy()
    {
        CopyElement<Record>(m_set);
        ShowCopied(m_user, KindOf<Record>);
    }

    /// The next change begins a step of its own: another control has the keyboard, or another gesture begins.
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
    template <class Change, class Record>
    void Changing(Change&& change, Record&& record)
    {
        try {
            change();
        } catch (...) {
            record();
            throw;
        }
        record();
    }
    void Push(SetStep* step);
    void PushDifference(const QString& name, const CardSet& before);
    void Restore(void (QUndoStack::*step)(), int index);
    /// Checks what has changed, and the whole set only where it was found unsavable before.
    void CheckSavable(const std::function<void()>& checkChanged);
    void CheckSet() const;
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
