#include "editor/frmQDW.h"

#include "dialogs/frmCardSheet.h"
#include "editor/CardPreview.h"
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
    const int16 current = m_workshop.Set.CurrentCard;
    ShowCard(current);
    SaveCard(m_workshop, current, Ask::Yes, Tell::Yes);
}

void frmQDW::CreateAll()
{
    CreateCards(m_workshop);
    ShowAfterRun();
}

void frmQDW::CreateSheets()
{
    const std::optional<SheetGrid> grid = AskSheetGrid(m_workshop.Set.Header.NoBack, this);
    CreateCardSheets(m_workshop, grid); // tells of a cancel as well
    if (grid)
        ShowAfterRun();
}

/// The run has laid the current card out again; other cards were on the preview before.
void frmQDW::ShowAfterRun()
{
    m_preview->update();
    FillCard();
}

void frmQDW::CreateHtml()
{
    CreateHtmlCards(m_workshop.Set, m_workshop.User);
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
