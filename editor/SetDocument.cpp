// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/SetDocument.h"

#include "platform/Paths.h"

namespace deckforge {

namespace {

constexpr int MaxSteps = 1000;

/// The reason why the check fails; empty if it does not.
QString ReasonOf(const std::function<void()>& check)
{
    try {
        check();
    } catch (const RunTimeError& error) {
        return error.Description();
    }
    return {};
}

} // namespace

SetDocument::SetDocument(CardSet& set, UserPort& user, std::chrono::milliseconds renewRescueAfter)
    : m_set(set), m_user(user), m_work(ProgramFolder(), renewRescueAfter)
{
    m_steps.setUndoLimit(MaxSteps);
}

void SetDocument::Edit(const QString& name, EditScope scope, const std::function<void(CardSet&)>& change)
{
    SetPart before(m_set, scope);
    try {
        change(m_set);
    } catch (...) {
        Push(name, scope, std::move(before));
        throw;
    }
    Push(name, scope, std::move(before));
}

void SetDocument::Push(const QString& name, EditScope scope, SetPart before)
{
    if (scope == EditScope::Anything)
        EndVisit(); // do not merge with the previous step
    auto step = std::make_unique<SetStep>(name, m_set, std::move(before), SetPart(m_set, scope), m_visit);
    if (step->IsEmpty())
        return;
    QString reason = ReasonOf([&] { step->CheckSavable(); });
    if (reason.isEmpty() && m_isUnsavable)
        reason = WhyUnsavable();
    ShowUnsavable(reason);
    m_steps.push(step.release());
    if (scope == EditScope::Anything)
        EndVisit(); // do not merge with the next step
    AfterChange();
}

void SetDocument::GoTo(CardKind kind, int16 index)
{
    EndVisit();
    CurrentOf(m_set, kind) = index;
}

void SetDocument::Undo()
{
    Restore(&QUndoStack::undo, m_steps.index() - 1);
}

void SetDocument::Redo()
{
    Restore(&QUndoStack::redo, m_steps.index());
}

void SetDocument::Restore(void (QUndoStack::*step)(), int index)
{
    const auto* const restored = static_cast<const SetStep*>(m_steps.command(index));
    if (!restored)
        return;
    EndVisit();
    const std::optional<CardKind> kind = restored->Kind();
    (m_steps.*step)();
    ShowUnsavable(WhyUnsavable());
    AfterChange();
    Q_EMIT Restored(kind);
}

QString SetDocument::WhyUnsavable() const
{
    return ReasonOf([this] { static_cast<void>(SetFileBytes(m_set, Unwritable::Fail)); });
}

void SetDocument::ShowUnsavable(const QString& reason)
{
    const bool isUnsavable = !reason.isEmpty();
    if (isUnsavable || m_isUnsavable)
        Q_EMIT UnsavableBecause(reason);
    m_isUnsavable = isUnsavable;
}

void SetDocument::AfterChange()
{
    try {
        WithMemoryAsFailure([this] { m_work.Renew(m_set); });
    } catch (const RunTimeError& error) {
        Q_EMIT Noted(
            QStringLiteral("Unsaved changes cannot be rescued: %1. Save the set.").arg(error.Description()));
    }
}

SaveResult SetDocument::Save()
{
    const SaveResult result = deckforge::SaveSet(m_set, m_user);
    if (result == SaveResult::Saved)
        Keep(FolderPart(m_set.Header.FileName));
    return result;
}

Answer SetDocument::AskToSave(BoxButtons buttons)
{
    const Answer answer = m_user.ShowMessage({.Text = QStringLiteral("Save current set?"),
                                              .Title = QStringLiteral("Save..."),
                                              .Style = BoxStyle::Question,
                                              .Buttons = buttons});
    if (answer == Answer::Yes && Save() == SaveResult::Failed)
        return Answer::Cancel;
    return answer;
}

bool SetDocument::Replace(const QString& name, const QString& path, const Loader& load)
{
    std::optional<QString> rescued;
    if (!Leave(rescued, path))
        return false;
    bool isThere = false;
    Edit(name, [&](CardSet& set) { isThere = load(set); });
    if (rescued && (isThere || !m_work.ReturnTo(m_set)))
        Q_EMIT Noted(QStringLiteral("The unsaved changes of the set before are in “%1”.").arg(*rescued));
    if (isThere)
        Keep(FolderPart(path));
    return isThere;
}

bool SetDocument::Leave()
{
    std::optional<QString> rescued;
    return Leave(rescued);
}

/// If the rescue fails the set stays: the user can save it, or exit without saving.
bool SetDocument::Leave(std::optional<QString>& rescued, const QString& toOpen)
{
    try {
        WithMemoryAsFailure([&] { rescued = m_work.Leave(m_set, toOpen); });
    } catch (const RunTimeError& error) {
        ShowNotSaved(m_user, error);
        return false;
    }
    return true;
}

void SetDocument::Keep(const QString& folder)
{
    m_work.Keep(m_set, folder);
    m_steps.setClean();
    EndVisit();
}

void SetDocument::NoteEarlierRescue()
{
    if (const auto rescued = m_work.LatestRescued())
        Q_EMIT Noted(QStringLiteral("There is a rescued set from %1: “%2”.")
                         .arg(rescued->Time.toString(QStringLiteral("yyyy-MM-dd hh:mm")), rescued->Path));
}

} // namespace deckforge
