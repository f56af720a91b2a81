#include "compose/SetView.h"
#include "dialogs/CardPreview.h"
#include "editor/frmQDW.h"
#include "files/modFile.h"
#include "ui_fraCard.h"
#include "ui_fraCharacter.h"
#include "ui_fraLargeCard.h"

#include <QDropEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTabBar>
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
    if (AskToSave(BoxButtons::YesNoCancel) != Answer::Cancel)
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
    deckforge::SaveSet(m_workshop.Set, m_workshop.User);
}

/// Nobody keeps account of changes: the question comes every time. A save that is cancelled keeps nothing
/// from going on.
Answer frmQDW::AskToSave(BoxButtons buttons)
{
    const Answer answer = m_workshop.User.ShowMessage({.Text = QStringLiteral("Save current set?"),
                                                       .Title = QStringLiteral("Save..."),
                                                       .Style = BoxStyle::Question,
                                                       .Buttons = buttons});
    if (answer == Answer::Yes)
        SaveSet();
    return answer;
}

void frmQDW::DoOpenDKF(const QString& path)
{
    CardSet& set = m_workshop.Set;
    if (!ReadDKF(set, path, m_workshop.User))
        return;
    {
        const QSignalBlocker quiet(tbCard); // the cards of the set before are gone
        tbCard->setCurrentIndex(0);
    }
    CardSizeSwitch(1);
    // The sliders stay where they are while the first cards are shown.
    m_card->hsbCard->setMaximum(set.CardCount);
    FillCardBackList();
    FillCardTypeList();
    ShowOpenedSet(m_workshop);
    FillSet();
    FillCard();
    m_large->hsbCardLarge->setMaximum(std::max<int>(1, set.LargeCardCount));
    m_character->hsbCharacter->setMaximum(std::max<int>(1, set.CharacterCount));
}

bool frmQDW::TakesDrop(const QDropEvent& event) const
{
    const QString path = DroppedFile(event);
    const QPointF onPreview = m_preview->mapFrom(this, event.position());
    return IsSetFile(path) || (IsPictureFile(path) && m_preview->BoxAt(onPreview) != nullptr);
}

void frmQDW::dragEnterEvent(QDragEnterEvent* event)
{
    const QString path = DroppedFile(*event);
    if (IsSetFile(path) || IsPictureFile(path))
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
        Guarded([&] { OpenDropped(path); });
        return;
    }
    Guarded([&] {
        const Box* box = m_preview->BoxAt(m_preview->mapFrom(this, event->position()));
        while (box && !DropOn(box, path)) // what takes no picture leaves it to what it lies on
            box = m_preview->ParentOf(*box);
    });
}

void frmQDW::OpenDropped(const QString& path)
{
    if (AskToSave(BoxButtons::YesNo) != Answer::Cancel)
        DoOpenDKF(path);
}

} // namespace deckforge
