#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/NewBack.h"
#include "compose/StandardCard.h"
#include "dialogs/CardPreview.h"
#include "dialogs/TabKeys.h"
#include "editor/frmQDW_Tables.h"
#include "ui_fraCardBack.h"
#include "ui_fraCharacter.h"
#include "ui_fraLargeCard.h"

#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>

namespace deckforge {

void frmQDW::BindModes()
{
    On(tbCard, &QTabBar::currentChanged, [this] { ModeClicked(); });
    On(tbCard, &QTabBar::tabBarClicked, [this](int index) {
        if (index == tbCard->currentIndex()) // another one changes it
            ModeClicked();
    });
    const auto onKey = [this](const QKeySequence& key, Action Mode::*action) {
        On(new QShortcut(key, this), &QShortcut::activated, [this, action] { Run(Selected().*action); });
    };
    onKey(Qt::CTRL | Qt::Key_N, &Mode::Add);
    onKey(Qt::CTRL | Qt::Key_Comma, &Mode::Previous);
    onKey(Qt::CTRL | Qt::Key_Period, &Mode::Next);
    BindTabKeys(*tbCard);
    On(m_large->chkShowBackLarge, &QCheckBox::clicked, [this] { SwitchLargeView(); });
    On(m_character->chkShowCharacterBack, &QCheckBox::clicked, [this] { SwitchCharacterView(); });
    On(m_character->chkShowPlayingPiece, &QCheckBox::clicked, [this] { SwitchPieceView(); });
}

CardKind frmQDW::SelectedKind() const
{
    return static_cast<CardKind>(tbCard->currentIndex());
}

const frmQDW::Mode& frmQDW::Selected() const
{
    static const std::array<Mode, 4> modes = {{
        {.Kind = CardKind::Standard,
         .Show = &frmQDW::ShowCard,
         .Save = &SaveCard,
         .Add = &frmQDW::AddCard<Card>,
         .Previous = &frmQDW::PreviousCard<Card>,
         .Next = &frmQDW::NextCard<Card>,
         .Copy = &frmQDW::CopyCard<Card>,
         .Paste = &frmQDW::PasteCard<Card>,
         .CreateAll = &CreateCards,
         .CreateSheets = &CreateCardSheets,
         .CreateHtml = &frmQDW::CreateCardHtml,
         .FillAgain = &frmQDW::FillCard},
        {.Kind = CardKind::Large,
         .Show = &frmQDW::ShowLargeCard,
         .Save = &SaveLargeCard,
         .Add = &frmQDW::AddCard<LargeCard>,
         .Previous = &frmQDW::PreviousCard<LargeCard>,
         .Next = &frmQDW::NextCard<LargeCard>,
         .Copy = &frmQDW::CopyCard<LargeCard>,
         .Paste = &frmQDW::PasteCard<LargeCard>,
         .CreateAll = &CreateLargeCards,
         .CreateSheets = &CreateLargeCardSheets,
         .CreateHtml = &frmQDW::CreateLargeCardHtml,
         .FillAgain = &frmQDW::FillLargeCard},
        {.Kind = CardKind::Character,
         .Show = &frmQDW::ShowCharacter,
         .Save = &SaveCharacter,
         .Add = &frmQDW::AddCard<Character>,
         .Previous = &frmQDW::PreviousCard<Character>,
         .Next = &frmQDW::NextCard<Character>,
         .Copy = &frmQDW::CopyCard<Character>,
         .Paste = &frmQDW::PasteCard<Character>,
         .CreateAll = &CreateCharacters,
         .CreateSheets = &CreateCharacterSheets,
         .CreateHtml = &frmQDW::CreateCharacterHtml,
         .FillAgain = &frmQDW::FillCharacter},
        // Card backs are saved one by one; all other commands take this tab for that of the characters.
        {.Kind = CardKind::NewBack,
         .Show = &frmQDW::ShowNewCardBack,
         .Save = &SaveNewCardBack,
         .Add = nullptr,
         .Previous = nullptr,
         .Next = nullptr,
         .Copy = &frmQDW::CopyCard<Character>,
         .Paste = &frmQDW::PasteCard<Character>,
         .CreateAll = &CreateCharacters,
         .CreateSheets = &CreateCharacterSheets,
         .CreateHtml = &frmQDW::CreateCharacterHtml,
         .FillAgain = &frmQDW::FillNewCardBack},
    }};
    return modes.at(static_cast<std::size_t>(SelectedKind()));
}

void frmQDW::Run(Action action)
{
    if (action)
        (this->*action)();
}

void frmQDW::Copy()
{
    Run(Selected().Copy);
}

void frmQDW::Paste()
{
    Run(Selected().Paste);
}

void frmQDW::CardSizeSwitch(CardKind kind)
{
    CardTemplates& t = m_workshop.Templates;
    m_forms->setCurrentIndex(static_cast<int>(kind));
    t.Standard.picCard.Visible = kind == CardKind::Standard;
    t.Standard.picBack.Visible =
        kind == CardKind::Standard; // also where the set goes without backs, until it is shown
    t.Large.picCardLarge.Visible = kind == CardKind::Large;
    t.Large.picBackLarge.Visible = false;
    m_large->chkShowBackLarge->setChecked(false);
    t.Character.picCharacter.Visible = kind == CardKind::Character;
    t.Character.picCharacterBack.Visible = false;
    t.PlayingPiece.picPlayingPiece.Visible = false;
    m_character->chkShowCharacterBack->setChecked(false);
    m_character->chkShowPlayingPiece->setChecked(false);
    t.NewBack.picNewBack.Visible = kind == CardKind::NewBack;
    m_preview->SettleFocus();
}

void frmQDW::ModeClicked()
{
    tbCard->setFocus(); // it would wander off the fields that go
    switch (SelectedKind()) {
    case CardKind::Standard:
        CardSizeSwitch(CardKind::Standard);
        ShowCard(m_workshop.Set.Cards.Current);
        break;
    case CardKind::Large:
        ShowLargeMode();
        break;
    case CardKind::Character:
        ShowCharacterMode();
        break;
    case CardKind::NewBack:
        ShowBackMode();
        break;
    }
}

// The first element of a kind other than the standard cards comes with the first look at its tab.

void frmQDW::ShowLargeMode()
{
    CardSet& set = m_workshop.Set;
    if (set.LargeCards.Count() == 0)
        MakeFirstElement<LargeCard>(set);
    CardSizeSwitch(CardKind::Large);
    ShowLargeCard(set.LargeCards.Current);
    m_large->hsbCardLarge->setRange(1, set.LargeCards.Count()); // at every look
}

void frmQDW::ShowCharacterMode()
{
    CardSet& set = m_workshop.Set;
    if (set.Characters.Count() == 0) {
        MakeFirstElement<Character>(set);
        m_character->hsbCharacter->setRange(1, set.Characters.Count());
    }
    CardSizeSwitch(CardKind::Character);
    ShowCharacter(set.Characters.Current);
}

/// The range of the slider stays as it was where there are backs, those of a set that was opened among them.
/// Its index does so too, unless it is none of theirs.
void frmQDW::ShowBackMode()
{
    CardSet& set = m_workshop.Set;
    if (set.NewCardBacks.Count() == 0) {
        MakeFirstElement<NewCardBack>(set);
        m_back->hsbNewCardBack->setRange(1, set.NewCardBacks.Count());
    } else if (set.NewCardBacks.Current == 0 || set.NewCardBacks.Current > set.NewCardBacks.Count()) {
        set.NewCardBacks.Current = 1;
    }
    CardSizeSwitch(CardKind::NewBack);
    ShowNewCardBack(set.NewCardBacks.Current);
}

void frmQDW::SwitchLargeView()
{
    if (SelectedKind() != CardKind::Large)
        return;
    LargeCardTemplate& t = m_workshop.Templates.Large;
    t.picBackLarge.Visible = m_large->chkShowBackLarge->isChecked();
    t.picCardLarge.Visible = !t.picBackLarge.Visible;
    m_preview->SettleFocus();
}

void frmQDW::SwitchCharacterView()
{
    if (SelectedKind() != CardKind::Character)
        return;
    SwitchPieceView(); // the back stays away while the piece is shown
}

void frmQDW::SwitchPieceView()
{
    CharacterTemplate& t = m_workshop.Templates.Character;
    const bool isPiece = m_character->chkShowPlayingPiece->isChecked();
    const bool isBack = m_character->chkShowCharacterBack->isChecked();
    m_workshop.Templates.PlayingPiece.picPlayingPiece.Visible = isPiece;
    t.picCharacter.Visible = !isPiece && !isBack;
    t.picCharacterBack.Visible = !isPiece && isBack;
    m_preview->SettleFocus();
}

// A failed show has told its failure in a box. The controls are filled all the same: what the user types into
// them goes to this record.

void frmQDW::ShowCard(int16 index)
{
    static_cast<void>(deckforge::ShowCard(m_workshop, index));
    FillCard();
}

void frmQDW::ShowLargeCard(int16 index)
{
    static_cast<void>(deckforge::ShowLargeCard(m_workshop, index));
    FillLargeCard();
}

void frmQDW::ShowCharacter(int16 index)
{
    if (m_workshop.Set.Header.Symbol.isEmpty()) // a symbol that was cleared stayed until now
        m_workshop.Templates.Character.picSymbolCharacter.Visible = false;
    static_cast<void>(deckforge::ShowCharacter(m_workshop, index));
    FillCharacter();
}

void frmQDW::ShowNewCardBack(int16 index)
{
    FillNewCardBack(); // first, since a failure leaves this routine
    deckforge::ShowNewCardBack(m_workshop, index);
}

} // namespace deckforge
