#include "editor/frmQDW.h"

#include "core/modInfo.h"
#include "ui_fraCard.h"

#include <QShortcut>
#include <QTabBar>

namespace deckforge {

namespace {

/// What is told of the card under the slider: "Sword (OBJECT Magic)".
QString DraggedText(const Card& card)
{
    const QString type = (card.Type + QLatin1Char(' ') + card.SubType).trimmed();
    return QStringLiteral("%1 (%2)").arg(card.Title, type);
}

} // namespace

void frmQDW::BindCards()
{
    const Ui::fraCard& form = *m_card;
    On(form.hsbCard, &QScrollBar::valueChanged, [this] { CardChanged(); });
    On(form.hsbCard, &QScrollBar::sliderMoved, [this] { CardDragged(); });
    On(form.hsbCard, &QScrollBar::sliderReleased, [this] { CardDropped(); });
    On(form.cmdCardAdd, &QPushButton::clicked, [this] { AddCard(); });
    On(form.cmdCardDelete, &QPushButton::clicked, [this] { DeleteCard(); });
    On(tbCard, &QTabBar::tabBarClicked, [this] { ModeClicked(); });
    On(new QShortcut(Qt::CTRL | Qt::Key_N, this), &QShortcut::activated, [this] { AddCard(); });
    On(new QShortcut(Qt::CTRL | Qt::Key_Comma, this), &QShortcut::activated, [this] { PreviousCard(); });
    On(new QShortcut(Qt::CTRL | Qt::Key_Period, this), &QShortcut::activated, [this] { NextCard(); });
}

void frmQDW::FillPosition(int16 index)
{
    m_card->lblCurrentCard->setText(PositionText(index, m_workshop.Set.CardCount));
}

void frmQDW::CardChanged()
{
    CardSet& set = m_workshop.Set;
    set.CurrentCard = static_cast<int16>(m_card->hsbCard->value());
    m_card->lblCardTitle->clear();
    FillPosition(set.CurrentCard);
    ShowCard(set.CurrentCard);
}

void frmQDW::CardDragged()
{
    const auto index = static_cast<int16>(m_card->hsbCard->sliderPosition());
    FillPosition(index);
    m_card->lblCardTitle->setText(DraggedText(m_workshop.Set.Cards[index]));
}

/// A slider that is let go where it was taken up changes no card.
void frmQDW::CardDropped()
{
    m_card->lblCardTitle->clear();
    FillPosition(m_workshop.Set.CurrentCard);
}

void frmQDW::PreviousCard()
{
    m_card->hsbCard->setValue(m_card->hsbCard->value() - 1);
}

void frmQDW::NextCard()
{
    m_card->hsbCard->setValue(m_card->hsbCard->value() + 1);
}

void frmQDW::AddCard()
{
    CardSet& set = m_workshop.Set;
    AddElement(set, StandardKind);
    m_card->hsbCard->setMaximum(set.CardCount);
    ShowCard(set.CurrentCard);
    m_card->hsbCard->setValue(set.CardCount);
    m_card->txtTitle->selectAll();
    m_card->txtTitle->setFocus();
}

void frmQDW::DeleteCard()
{
    CardSet& set = m_workshop.Set;
    const bool isLast = set.CurrentCard == set.CardCount;
    if (!DeleteElement(set, m_workshop.User, StandardKind))
        return;
    if (isLast)
        m_card->hsbCard->setValue(set.CurrentCard);
    ShowCard(set.CurrentCard);
    m_card->hsbCard->setMaximum(set.CardCount);
    FillPosition(set.CurrentCard);
}

void frmQDW::CopyCard()
{
    CopyElement(m_workshop.Set, m_workshop.User, StandardKind);
}

void frmQDW::PasteCard()
{
    PasteElement(m_workshop.Set, StandardKind);
    ShowCard(m_workshop.Set.CurrentCard);
}

void frmQDW::ModeClicked()
{
    CardSizeSwitch(1);
    ShowCard(m_workshop.Set.CurrentCard);
}

} // namespace deckforge
