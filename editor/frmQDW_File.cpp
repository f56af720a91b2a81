#include "compose/SetView.h"
#include "dialogs/CardPreview.h"
#include "editor/frmQDW.h"
#include "platform/Paths.h"
#include "ui_fraCard.h"
#include "ui_fraCharacter.h"
#include "ui_fraLargeCard.h"

#include <QDropEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>
#include <algorithm>

namespace deckforge {

namespace {

/// The one file that is dropped; empty for anything else.
QString DroppedFile(const QDropEvent& event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

bool HasExtension(const QString& path, std::initializer_list<const char*> extensions)
{
    return std::any_of(extensions.begin(), extensions.end(), [&](const char* extension) {
        return path.endsWith(QLatin1String(extension), Qt::CaseInsensitive);
    });
}

/// A slider past its new end goes there without showing what it stands for.
void SetMaximumQuietly(QScrollBar& slider, int most)
{
    const QSignalBlocker quiet(slider);
    slider.setMaximum(std::max(1, most));
}

bool IsSetFile(const QString& path)
{
    return HasExtension(path, {".dkf"});
}

bool IsPictureFile(const QString& path)
{
    return HasExtension(path, {".bmp", ".jpg", ".jpeg", ".gif", ".wmf"});
}

} // namespace

void frmQDW::Exit()
{
    const Answer answer = AskToSave(BoxButtons::YesNoCancel);
    if (answer == Answer::Cancel)
        return;
    const QScopedValueRollback mayLose(m_mayLose, answer == Answer::No);
    close();
}

/// A question that is put aside makes no new set.
void frmQDW::NewSet()
{
    std::optional<QString> rescued;
    if (AskToSave(BoxButtons::YesNo) == Answer::Cancel || !LeaveSet(rescued))
        return;
    InitForm();
    NoteRescued(rescued);
}

void frmQDW::OpenSet()
{
    if (const auto path = AskSetToOpen(m_workshop.User))
        DoOpenDKF(*path);
}

void frmQDW::SaveSet()
{
    AskWhereAndSave();
}

SaveResult frmQDW::AskWhereAndSave()
{
    const SaveResult result = deckforge::SaveSet(m_workshop.Set, m_workshop.User);
    if (result == SaveResult::Saved) {
        statusBar()->clearMessage();
        m_work.Keep(m_workshop.Set, FolderPart(m_workshop.Set.Header.FileName));
    }
    return result;
}

/// Nobody keeps account of changes: the question comes every time. A save that is cancelled keeps nothing
/// from going on. One that failed does: it counts as a question put aside, and the set stays.
Answer frmQDW::AskToSave(BoxButtons buttons)
{
    const Answer answer = m_workshop.User.ShowMessage({.Text = QStringLiteral("Save current set?"),
                                                       .Title = QStringLiteral("Save..."),
                                                       .Style = BoxStyle::Question,
                                                       .Buttons = buttons});
    if (answer == Answer::Yes && AskWhereAndSave() == SaveResult::Failed)
        return Answer::Cancel;
    return answer;
}

void frmQDW::DoOpenDKF(const QString& path)
{
    CardSet& set = m_workshop.Set;
    std::optional<QString> rescued;
    if (!LeaveSet(rescued, PathToOpen(path)))
        return;
    const bool isRead = ReadDKF(set, path, m_workshop.User);
    if (isRead || !m_work.ReturnTo(set))
        NoteRescued(rescued);
    if (!isRead)
        return;
    m_work.Keep(set, FolderPart(PathToOpen(path)));
    {
        const QSignalBlocker quiet(tbCard); // the cards of the set before are gone
        tbCard->setCurrentIndex(0);
    }
    CardSizeSwitch(CardKind::Standard);
    // Ranges alone: the sliders do not go to the first cards, which are shown.
    SetMaximumQuietly(*m_card->hsbCard, set.Cards.Count());
    SetMaximumQuietly(*m_large->hsbCardLarge, set.LargeCards.Count());
    SetMaximumQuietly(*m_character->hsbCharacter, set.Characters.Count());
    FillCardBackList();
    FillCardTypeList();
    ShowOpenedSet(m_workshop);
    FillSet();
    FillCard();
}

bool frmQDW::TakesDrop(const QDropEvent& event) const
{
    if (m_isBusy) // a run has the set
        return false;
    const QString path = DroppedFile(event);
    const QPointF onPreview = m_preview->mapFrom(this, event.position());
    return IsSetFile(path) || (IsPictureFile(path) && m_preview->BoxAt(onPreview) != nullptr);
}

void frmQDW::dragEnterEvent(QDragEnterEvent* event)
{
    const QString path = DroppedFile(*event);
    if (!m_isBusy && (IsSetFile(path) || IsPictureFile(path)))
        event->acceptProposedAction();
}

void frmQDW::dragMoveEvent(QDragMoveEvent* event)
{
    event->setAccepted(TakesDrop(*event));
}

void frmQDW::dropEvent(QDropEvent* event)
{
    if (!TakesDrop(*event))
        return;
    event->acceptProposedAction();
    const QString path = DroppedFile(*event);
    if (IsSetFile(path)) {
        // Where the file comes from waits for the end of the drop, not of the question.
        QTimer::singleShot(0, this, [this, path] { Guarded([&] { OpenDropped(path); }); });
        return;
    }
    Guarded([&] { DropOn(m_preview->BoxAt(m_preview->mapFrom(this, event->position())), path); });
}

/// A run goes on to its end: it would come back to a window that is gone.
void frmQDW::closeEvent(QCloseEvent* event)
{
    std::optional<QString> rescued;
    event->setAccepted(!m_isBusy && (LeaveSet(rescued) || m_mayLose));
    if (event->isAccepted())
        m_work.Keep(m_workshop.Set);
}

/// Before the set is replaced or the window closes: what is in no file is rescued. Where that fails the set
/// stays; the way out is to save it, or Exit without.
bool frmQDW::LeaveSet(std::optional<QString>& rescued, const QString& toOpen)
{
    statusBar()->clearMessage();
    try {
        WithMemoryAsFailure([&] { rescued = m_work.Leave(m_workshop.Set, toOpen); });
    } catch (const RunTimeError& error) {
        TellNotSaved(m_workshop.User, error);
        return false;
    }
    return true;
}

/// Shows a note in the status bar, behind the one that is there.
void frmQDW::AddNote(const QString& note)
{
    const QString before = statusBar()->currentMessage();
    statusBar()->showMessage(before.isEmpty() ? note : before + QStringLiteral("  ") + note);
}

void frmQDW::NoteRescued(const std::optional<QString>& rescued)
{
    if (rescued)
        AddNote(QStringLiteral("The unsaved changes of the set before are in “%1”.").arg(*rescued));
}

/// For those who lost a set in a run before this one.
void frmQDW::NoteEarlierRescue()
{
    if (const auto rescued = m_work.LatestRescued())
        AddNote(QStringLiteral("There is a rescued set from %1: “%2”.")
                    .arg(rescued->Time.toString(QStringLiteral("yyyy-MM-dd hh:mm")), rescued->Path));
}

void frmQDW::OpenDropped(const QString& path)
{
    if (AskToSave(BoxButtons::YesNo) != Answer::Cancel)
        DoOpenDKF(path);
}

} // namespace deckforge
