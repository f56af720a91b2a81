#include "core/modInfo.h"
#include "editor/frmQDW_Tables.h"
#include "ui_fraCard.h"
#include "ui_fraCardBack.h"
#include "ui_fraCharacter.h"
#include "ui_fraLargeCard.h"

#include <algorithm>

namespace deckforge {

namespace {

/// "Sword (OBJECT- Magic)".
QString TitleAndType(const Card& card)
{
    const QString type = (card.Type + QLatin1Char(' ') + card.SubType).trimmed();
    return QStringLiteral("%1 (%2)").arg(card.Title, type);
}

QString NameOf(const Character& character)
{
    return character.Name;
}

QString Nothing(const LargeCard& /*card*/)
{
    return {};
}

int16 IndexOfSlider(int slider, int16 /*current*/)
{
    return static_cast<int16>(slider);
}

/// The position of large cards stays at the one that is shown.
int16 IndexShown(int /*slider*/, int16 current)
{
    return current;
}

} // namespace

template <>
frmQDW::Page<Card> frmQDW::PageOf()
{
    const Ui::fraCard& form = *m_card;
    return {form.hsbCard,    form.lblCurrentCard, form.lblCardTitle, &TitleAndType,    &IndexOfSlider,
            form.cmdCardAdd, form.cmdCardDelete,  form.txtTitle,     &frmQDW::ShowCard};
}

template <>
frmQDW::Page<LargeCard> frmQDW::PageOf()
{
    const Ui::fraLargeCard& form = *m_large;
    return {form.hsbCardLarge,     form.lblCurrentCardLarge, form.lblCardTitleLarge,  &Nothing,
            &IndexShown,           form.cmdCardAddLarge,     form.cmdCardDeleteLarge, form.txtTitleLarge,
            &frmQDW::ShowLargeCard};
}

template <>
frmQDW::Page<Character> frmQDW::PageOf()
{
    const Ui::fraCharacter& form = *m_character;
    return {form.hsbCharacter,
            form.lblCurrentCardCharacter,
            form.lblChar,
            &NameOf,
            &IndexOfSlider,
            form.cmdCharacterAdd,
            form.cmdCharacterDelete,
            form.txtCharName,
            &frmQDW::ShowCharacter};
}

template <>
frmQDW::Page<NewCardBack> frmQDW::PageOf()
{
    const Ui::fraCardBack& form = *m_back;
    return {form.hsbNewCardBack,
            form.lblCurrentNewCardBack,
            nullptr,
            nullptr,
            &IndexOfSlider,
            form.cmdNewCardBackAdd,
            form.cmdNewCardBackDelete,
            form.txtNewCardBackName,
            &frmQDW::ShowNewCardBack};
}

template <class Record>
void frmQDW::BindPage()
{
    const Page<Record> page = PageOf<Record>();
    On(page.Bar, &QScrollBar::valueChanged, [this] { CardChanged<Record>(); });
    On(page.Bar, &QScrollBar::sliderMoved, [this] { CardDragged<Record>(); });
    On(page.Bar, &QScrollBar::sliderReleased, [this] { CardDropped<Record>(); });
    On(page.Add, &QAbstractButton::clicked, [this] { AddCard<Record>(); });
    On(page.Delete, &QAbstractButton::clicked, [this] { DeleteCard<Record>(); });
}

void frmQDW::BindCards()
{
    BindPage<Card>();
    BindPage<LargeCard>();
    BindPage<Character>();
    BindPage<NewCardBack>();
}

template <class Record>
void frmQDW::FillPosition()
{
    const Page<Record> page = PageOf<Record>();
    const CardList<Record>& cards = ListOf<Record>(m_workshop.Set);
    page.Position->setText(PositionText(cards.Current, cards.Count()));
}

template void frmQDW::FillPosition<Card>();
template void frmQDW::FillPosition<LargeCard>();
template void frmQDW::FillPosition<Character>();
template void frmQDW::FillPosition<NewCardBack>();

/// The slider of card backs can reach past them: its range is not renewed for a set that was opened.
template <class Record>
void frmQDW::CardChanged()
{
    const Page<Record> page = PageOf<Record>();
    CardList<Record>& cards = ListOf<Record>(m_workshop.Set);
    int16& current = cards.Current;
    current = std::min(static_cast<int16>(page.Bar->value()), cards.Count());
    CardDropped<Record>();
    (this->*page.Show)(current);
}

template <class Record>
void frmQDW::CardDragged()
{
    const Page<Record> page = PageOf<Record>();
    const CardList<Record>& cards = ListOf<Record>(m_workshop.Set);
    const int slider = page.Bar->sliderPosition();
    const int16 index = page.DraggedIndex(slider, cards.Current);
    page.Position->setText(PositionText(index, cards.Count()));
    if (page.Dragged)
        page.Dragged->setText(page.DraggedText(cards[slider]));
}

/// Also where the slider is let go where it was taken up, which changes no card.
template <class Record>
void frmQDW::CardDropped()
{
    const Page<Record> page = PageOf<Record>();
    if (page.Dragged)
        page.Dragged->clear();
    FillPosition<Record>();
}

template <class Record>
void frmQDW::PreviousCard()
{
    QScrollBar& bar = *PageOf<Record>().Bar;
    bar.setValue(bar.value() - 1);
}

template <class Record>
void frmQDW::NextCard()
{
    QScrollBar& bar = *PageOf<Record>().Bar;
    bar.setValue(bar.value() + 1);
}

template <class Record>
void frmQDW::AddCard()
{
    const Page<Record> page = PageOf<Record>();
    CardList<Record>& cards = ListOf<Record>(m_workshop.Set);
    AddElement<Record>(m_workshop.Set);
    page.Bar->setMaximum(cards.Count());
    (this->*page.Show)(cards.Current);
    page.Bar->setValue(cards.Count());
    page.Name->selectAll();
    if (page.Name->isVisibleTo(this)) // after New the form may not be that of the tab
        page.Name->setFocus();
}

template <class Record>
void frmQDW::DeleteCard()
{
    const Page<Record> page = PageOf<Record>();
    CardList<Record>& cards = ListOf<Record>(m_workshop.Set);
    const bool isLast = cards.Current == cards.Count();
    if (!DeleteElement<Record>(m_workshop.Set, m_workshop.User))
        return;
    if (isLast)
        page.Bar->setValue(cards.Current);
    (this->*page.Show)(cards.Current);
    page.Bar->setMaximum(cards.Count());
    FillPosition<Record>();
}

template <class Record>
void frmQDW::CopyCard()
{
    CopyElement<Record>(m_workshop.Set, m_workshop.User);
}

template <class Record>
void frmQDW::PasteCard()
{
    const Page<Record> page = PageOf<Record>();
    const CardList<Record>& cards = ListOf<Record>(m_workshop.Set);
    PasteElement<Record>(m_workshop.Set);
    (this->*page.Show)(cards.Current);
}

// The commands of the tabs and their keys.
template void frmQDW::AddCard<Card>();
template void frmQDW::AddCard<LargeCard>();
template void frmQDW::AddCard<Character>();
template void frmQDW::PreviousCard<Card>();
template void frmQDW::PreviousCard<LargeCard>();
template void frmQDW::PreviousCard<Character>();
template void frmQDW::NextCard<Card>();
template void frmQDW::NextCard<LargeCard>();
template void frmQDW::NextCard<Character>();
template void frmQDW::CopyCard<Card>();
template void frmQDW::CopyCard<LargeCard>();
template void frmQDW::CopyCard<Character>();
template void frmQDW::PasteCard<Card>();
template void frmQDW::PasteCard<LargeCard>();
template void frmQDW::PasteCard<Character>();

} // namespace deckforge
