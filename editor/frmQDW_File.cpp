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
    if (AskToSave(BoxButtons::YesNoCancel) == Answer::Cancel)
        return;
    const QScopedValueRollback leaving(m_isLeaving, true);
    close();
}

/// A question that is put aside makes no new set.
void frmQDW::NewSet()
{
    if (AskToSave(BoxButtons::YesNo) != Answer::Cancel)
        InitForm();
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
    if (result == SaveResult::Saved)
        m_kept.Keep(m_workshop.Set);
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
    if (!ReadDKF(set, path, m_workshop.User))
        return;
    m_kept.Keep(set);
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
    event->setAccepted(!m_isBusy && IsKeptOrRescued());
}

/// The close box asks nothing, so that what it would lose is rescued. Where that fails the window stays, and
/// the way out is Exit, which asks.
bool frmQDW::IsKeptOrRescued()
{
    if (m_isLeaving || !m_kept.Differs(m_workshop.Set))
        return true;
    try {
        WithMemoryAsFailure([this] { RescueSet(m_workshop.Set, ProgramFolder()); });
    } catch (const RunTimeError& error) {
        TellNotSaved(m_workshop.User, error);
        return false;
    }
    m_kept.Keep(m_workshop.Set);
    return true;
}

void frmQDW::OpenDropped(const QString& path)
{
    if (AskToSave(BoxButtons::YesNo) != Answer::Cancel)
        DoOpenDKF(path);
}

} // namespace deckforge
