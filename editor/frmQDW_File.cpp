#include "compose/FontScheme.h"
#include "compose/SetView.h"
#include "editor/Page.h"
#include "editor/SetInfoPanel.h"
#include "editor/frmQDW.h"
#include "platform/Paths.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>

namespace deckforge {

namespace {

/// The one file that is dropped; empty for anything else.
QString DroppedFile(const QDropEvent& event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

bool IsSetFile(const QString& path)
{
    return path.endsWith(QLatin1String(".dkf"), Qt::CaseInsensitive);
}

bool IsPictureFile(const QString& path)
{
    return QStringList{"bmp", "jpg", "jpeg", "gif", "wmf"}.contains(QFileInfo(path).suffix(),
                                                                    Qt::CaseInsensitive);
}

} // namespace

void frmQDW::Exit()
{
    const Answer answer = m_document.AskToSave(BoxButtons::YesNoCancel);
    if (answer == Answer::Cancel)
        return;
    const QScopedValueRollback mayLose(m_mayLose, answer == Answer::No);
    close();
}

/// A question that is cancelled makes no new set.
void frmQDW::NewSet()
{
    statusBar()->clearMessage();
    if (m_document.AskToSave(BoxButtons::YesNo) == Answer::Cancel)
        return;
    const auto makeNew = [this](CardSet&) {
        InitForm(m_works);
        return true;
    };
    if (m_document.Replace(QStringLiteral("New card set"), {}, makeNew))
        ShowNewSet();
}

void frmQDW::ShowNewSet()
{
    Page& standard = PageOf(CardKind::Standard); // the selected tab may be another
    standard.TakeSet();
    m_info->Fill();
    ShowKind(CardKind::Standard);
    standard.Fill();
}

void frmQDW::OpenSet()
{
    if (const auto path = AskSetToOpen(m_parts.User))
        OpenFile(*path);
}

void frmQDW::OpenFile(const QString& path)
{
    statusBar()->clearMessage();
    const auto read = [&](CardSet& set) { return ReadDKF(set, path, m_parts.User); };
    if (m_document.Replace(QStringLiteral("Open card set"), PathToOpen(path), read))
        ShowOpened();
}

void frmQDW::ShowOpened()
{
    {
        const QSignalBlocker quiet(tbCard); // the cards of the set before are gone
        tbCard->setCurrentIndex(0);
    }
    ShowKind(CardKind::Standard);
    for (const auto& page : m_pages)
        page->TakeSet();
    ShowOpenedSet(m_works);
    m_info->Fill();
    SelectedPage().Fill();
}

void frmQDW::SaveSet()
{
    statusBar()->clearMessage();
    m_document.Save();
}

void frmQDW::Start(const QString& commandLine)
{
    if (!commandLine.isEmpty())
        Guarded(m_parts.User, [&] { OpenFile(commandLine); });
    m_document.NoteEarlierRescue();
}

/// Shows the set as a step left it, at the tab where the step was.
void frmQDW::ShowRestored(const std::optional<CardKind>& kind)
{
    const CardSet& set = m_document.Set();
    CardKind shown = kind.value_or(SelectedKind());
    if (CountOf(set, shown) == 0)
        shown = CardKind::Standard;
    {
        const QSignalBlocker quiet(tbCard);
        tbCard->setCurrentIndex(static_cast<int>(shown));
    }
    for (const auto& page : m_pages) {
        page->TakeSet();
        page->SyncSlider();
    }
    ShowSet(m_works);
    SetFont(m_works.Templates, set.Header);
    m_info->Fill();
    ShowKind(shown);
    SelectedPage().Show(CurrentOf(set, shown));
}

/// A run goes on to its end: it would come back to a window that is gone.
void frmQDW::closeEvent(QCloseEvent* event)
{
    statusBar()->clearMessage();
    event->setAccepted(!m_isBusy && (m_document.Leave() || m_mayLose));
    if (event->isAccepted())
        m_document.Keep();
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
        // The source of the drop waits for its end, which is not to wait for the question.
        QTimer::singleShot(0, this, [this, path] {
            Guarded(m_parts.User, [&] {
                if (m_document.AskToSave(BoxButtons::YesNo) != Answer::Cancel)
                    OpenFile(path);
            });
        });
        return;
    }
    const QPointF onPreview = m_preview->mapFrom(this, event->position());
    Guarded(m_parts.User, [&] { DropPicture(m_preview->BoxAt(onPreview), path); });
}

/// A box that takes no picture leaves it to the box that it lies on: a label to its card, for one.
void frmQDW::DropPicture(const Box* box, const QString& path)
{
    for (; box; box = m_preview->ParentOf(*box)) {
        for (const auto& page : m_pages) {
            if (page->TakeDrop(*box, path))
                return;
        }
    }
}

} // namespace deckforge
