#include "dialogs/frmCardSheet.h"
#include "editor/frmQDW_Tables.h"
#include "files/modFile.h"
#include "output/HtmlSheets.h"
#include "output/Statistics.h"
#include "output/modCapture.h"

namespace deckforge {

void frmQDW::ExportBacks()
{
    ExportCardBacks(m_workshop);
}

void frmQDW::CreateOne()
{
    const Mode& mode = Selected();
    const int16 current = Existing(mode.Kind);
    (this->*mode.Show)(current);
    RunReport report(m_workshop.User);
    mode.Save(m_workshop, report, current, Ask::Yes, Tell::Yes, {});
}

/// A new set has only standard cards until the other tabs are looked at; until then error 9.
int16 frmQDW::Existing(CardKind kind) const
{
    const int16 index = CurrentOf(m_workshop.Set, kind);
    if (index < 1)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return index;
}

void frmQDW::CreateAll()
{
    RunReport report(m_workshop.User);
    Selected().CreateAll(m_workshop, report);
    ShowAfterRun();
}

void frmQDW::CreateSheets()
{
    const std::optional<SheetGrid> grid = AskSheetGrid(m_workshop.Set.Header.NoBack, this);
    RunReport report(m_workshop.User);
    Selected().CreateSheets(m_workshop, report, grid); // tells of a cancel as well
    if (grid)
        ShowAfterRun();
}

/// The run has laid the current card out again; other cards were on the preview before.
void frmQDW::ShowAfterRun()
{
    if (CurrentOf(m_workshop.Set, Selected().Kind) > 0)
        Run(Selected().FillAgain);
}

void frmQDW::CreateHtml()
{
    Run(Selected().CreateHtml);
}

void frmQDW::CreateCardHtml()
{
    RunReport report(m_workshop.User);
    CreateHtmlCards(m_workshop.Set, m_workshop.User, report);
}

void frmQDW::CreateLargeCardHtml()
{
    RunReport report(m_workshop.User);
    CreateHtmlLargeCards(m_workshop.Set, m_workshop.User, report);
}

void frmQDW::CreateCharacterHtml()
{
    RunReport report(m_workshop.User);
    CreateHtmlCharacters(m_workshop.Set, m_workshop.User, report);
    CreateHtmlPieces(m_workshop.Set, m_workshop.User, report);
}

void frmQDW::ExportListing()
{
    ExportText(m_workshop.Set, m_workshop.User);
}

void frmQDW::ShowStatistics()
{
    Statistics(m_workshop.Set, m_workshop.User);
}

} // namespace deckforge
