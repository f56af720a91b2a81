// SPDX-License-Identifier: GPL-3.0-or-later

#include "commands/OutputCommands.h"
#include "compose/FontScheme.h"
#include "editor/IncomingPictures.h"
#include "editor/Page.h"
#include "editor/SetInfoPanel.h"
#include "editor/frmQDW.h"
#include "platform/Paths.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>
#include <utility>

namespace deckforge {

void frmQDW::Exit()
{
    const Answer answer = m_document.AskToSave(BoxButtons::YesNoCancel);
    if (answer == Answer::Cancel)
        return;
    const QScopedValueRollback mayLose(m_mayLose, answer == Answer::No);
    close();
}

/// Cancelling the question cancels the command.
void frmQDW::NewSet()
{
    statusBar()->clearMessage();
    if (m_document.AskToSave(BoxButtons::YesNo) == Answer::Cancel)
        return;
    const auto makeNew = [this](CardSet&) {
        ShowViewFailures(m_parts.User, InitForm(m_works));
        return true;
    };
    if (m_document.Replace(QStringLiteral("New card set"), {}, makeNew))
        ShowNewSet();
}

void frmQDW::ShowNewSet()
{
    Page& standard = PageOf(CardKind::Standard); // not necessarily the selected tab
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
    const auto read = [&](CardSet& set) { return deckforge::OpenSet(set, path, m_parts.User); };
    if (m_document.Replace(QStringLiteral("Open card set"), PathToOpen(path), read))
        ShowOpened();
}

void frmQDW::ShowOpened()
{
    {
        const QSignalBlocker quiet(tbCard); // the cards of the previous set are gone
        tbCard->setCurrentIndex(0);
    }
    ShowKind(CardKind::Standard);
    for (const auto& page : m_pages)
        page->TakeSet();
    ShowViewFailures(m_parts.User, ShowOpenedSet(m_works));
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

/// Shows the set after undo or redo, at the tab of the step.
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
    if (const auto failure = ShowSet(m_works))
        ShowUnhandledError(m_parts.User, *failure);
    SetFont(m_works.Templates, set.Header);
    m_info->Fill();
    ShowKind(shown);
    SelectedPage().Show(CurrentOf(set, shown));
}

/// A run must finish first: it would return to a destroyed window.
void frmQDW::closeEvent(QCloseEvent* event)
{
    statusBar()->clearMessage();
    event->setAccepted(!m_isBusy && (m_document.Leave() || m_mayLose));
    if (event->isAccepted())
        m_document.Keep();
}

bool frmQDW::TakesDrop(const QDropEvent& event) const
{
    if (m_isBusy) // the run uses the set
        return false;
    const QPointF onPreview = m_preview->mapFrom(this, event.position());
    return !SetFileIn(*event.mimeData()).isEmpty() ||
           (HasPictures(*event.mimeData()) && m_preview->BoxAt(onPreview) != nullptr);
}

void frmQDW::dragEnterEvent(QDragEnterEvent* event)
{
    if (!m_isBusy && (!SetFileIn(*event->mimeData()).isEmpty() || HasPictures(*event->mimeData())))
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
    if (const QString path = SetFileIn(*event->mimeData()); !path.isEmpty()) {
        // Otherwise the drag source would wait for the answer to the question.
        QTimer::singleShot(0, this, [this, path] {
            Guarded(m_parts.User, [&] {
                if (m_document.AskToSave(BoxButtons::YesNo) != Answer::Cancel)
                    OpenFile(path);
            });
        });
        return;
    }
    const Box* const box = m_preview->BoxAt(m_preview->mapFrom(this, event->position()));
    TakePictures(*event->mimeData(), [&](const QString& path) { DropPicture(box, path); });
}

/// The first picture is for the current card; each further one gets a new card.
void frmQDW::TakePictures(const QMimeData& carried, const std::function<void(const QString&)>& take)
{
    Guarded(m_parts.User, [&] {
        bool isFirst = true;
        for (const QString& path : IncomingPictures(carried).Kept(m_document.Set())) {
            if (!std::exchange(isFirst, false))
                SelectedPage().Add();
            take(path);
        }
    });
}

void frmQDW::PastePictures()
{
    if (const QMimeData* const copied = QGuiApplication::clipboard()->mimeData(); copied && !m_isBusy)
        TakePictures(*copied, [this](const QString& path) { SelectedPage().TakePicture(path); });
}

/// A box that takes no picture passes it to its parent, a label to its card for example.
void frmQDW::DropPicture(const Box* box, const QString& path)
{
    for (; box; box = box->Parent) {
        for (const auto& page : m_pages) {
            if (page->TakeDrop(*box, path))
                return;
        }
    }
}

} // namespace deckforge
