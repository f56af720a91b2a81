#include "editor/frmQDW.h"

#include "editor/CardPreview.h"
#include "output/modCapture.h"

namespace deckforge {

void frmQDW::CreateOne()
{
    const int16 current = m_workshop.Set.CurrentCard;
    ShowCard(current);
    SaveCard(m_workshop, current, Ask::Yes, Tell::Yes);
}

void frmQDW::CreateAll()
{
    CreateCards(m_workshop);
    // The run has laid the current card out again; other cards were on the preview before.
    m_preview->update();
    FillCard();
}

} // namespace deckforge
