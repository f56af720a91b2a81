#include "editor/frmQDW.h"

#include "compose/SetView.h"
#include "editor/CardPreview.h"
#include "files/modFile.h"
#include "ui_fraCard.h"

#include <QTabBar>

namespace deckforge {

void frmQDW::Exit()
{
    if (AskToSave(BoxButtons::YesNoCancel) != Answer::Cancel)
        close();
}

void frmQDW::NewSet()
{
    AskToSave(BoxButtons::YesNo);
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
    if (!ReadDKF(m_workshop.Set, path, m_workshop.User))
        return;
    tbCard->setCurrentIndex(0);
    CardSizeSwitch(1);
    // The slider stays where it is while the first card is shown.
    m_card->hsbCard->setMaximum(m_workshop.Set.CardCount);
    ShowOpenedSet(m_workshop);
    m_preview->update();
    FillSet();
    FillCard();
}

} // namespace deckforge
