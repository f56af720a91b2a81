#include "compose/FontScheme.h"
#include "core/CardListRows.h"
#include "dialogs/CardPreview.h"
#include "dialogs/frmAbout.h"
#include "dialogs/frmCardList.h"
#include "dialogs/frmChangeFont.h"
#include "dialogs/frmPicPath.h"
#include "dialogs/frmSetInfo.h"
#include "editor/frmQDW_Tables.h"
#include "output/Printing.h"
#include "ui_fraCard.h"
#include "ui_fraCharacter.h"
#include "ui_fraLargeCard.h"

#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabBar>

namespace deckforge {

void frmQDW::BindDialogs()
{
    On(m_card->cmdSort, &QAbstractButton::clicked, [this] { ChooseFromList<Card>(); });
    On(m_large->cmdSortLarge, &QAbstractButton::clicked, [this] { ChooseFromList<LargeCard>(); });
    On(m_character->cmdSortCharacter, &QAbstractButton::clicked, [this] { ChooseFromList<Character>(); });
}

void frmQDW::ChangePicPath()
{
    EditPicturePaths(m_workshop, this);
    const Mode& mode = Selected();
    if (const int16 current = CurrentOf(m_workshop.Set, mode.Kind); current > 0)
        (this->*mode.Show)(current);
}

void frmQDW::SetInfo()
{
    EditSetInfo(m_workshop, m_lastBackFile, this);
    FillCardBackList();
    FillCardTypeList();
    ShowCard(m_workshop.Set.Cards.Current);
}

void frmQDW::ChangeFonts()
{
    EditFonts(m_workshop, this);
    SetFont(m_workshop.Templates, m_workshop.Set.Header);
    ArtistChanged();
    m_preview->update();
}

/// The tab of card backs prints the current character, without its playing piece.
void frmQDW::PrintCurrent()
{
    struct PrintRow {
        PrintedPage Page;
        void (frmQDW::*Show)(int16);
    };
    static constexpr std::array<PrintRow, 4> rows = {{{PrintedPage::Card, &frmQDW::ShowCard},
                                                      {PrintedPage::LargeCard, &frmQDW::ShowLargeCard},
                                                      {PrintedPage::Character, &frmQDW::ShowCharacter},
                                                      {PrintedPage::CharacterAlone, &frmQDW::ShowCharacter}}};
    const PrintRow& row = rows.at(static_cast<std::size_t>(tbCard->currentIndex()));
    (this->*row.Show)(Existing(KindOnPage(row.Page)));
    RunReport report(m_workshop.User);
    PrintCard(m_workshop, report, row.Page);
}

void frmQDW::About()
{
    ShowAbout(this);
}

template <class Record>
void frmQDW::ChooseFromList()
{
    const std::optional<int16> chosen = ChooseFromCardList(m_workshop.Set, KindOf<Record>, this);
    if (!chosen)
        return;
    const Page<Record> page = PageOf<Record>();
    CardList<Record>& cards = ListOf<Record>(m_workshop.Set);
    cards.Current = *chosen;
    {
        const QSignalBlocker quiet(page.Bar); // which may not reach as far
        page.Bar->setValue(*chosen);
    }
    FillPosition<Record>();
    // The list of the large cards has the characters, and may have given one past the last large card. That
    // fails here, and is told once; showing it would fail twice.
    static_cast<void>(cards[*chosen]);
    (this->*page.Show)(*chosen);
}

} // namespace deckforge
