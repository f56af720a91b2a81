#include "compose/StandardCard.h"
#include "core/CardVocabulary.h"
#include "core/Vocabulary.h"
#include "dialogs/CardPreview.h"
#include "editor/TextControl.h"
#include "editor/frmQDW.h"
#include "platform/Numbers.h"
#include "ui_fraCard.h"
#include "ui_fraCharacter.h"
#include "ui_fraSet.h"

#include <QSignalBlocker>

namespace deckforge {

namespace {

void FillList(QComboBox& list, const QStringList& entries)
{
    list.clear();
    list.addItems(entries);
    if (list.isEditable())
        list.setCompleter(nullptr); // what is typed stays as typed
}

/// Makes an entry that was typed the current one, or else the list would choose it when it loses the
/// keyboard.
void SelectTyped(QComboBox& list)
{
    const QSignalBlocker quiet(list);
    const int entry = list.findText(list.currentText(), Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (entry >= 0)
        list.setCurrentIndex(entry);
}

/// Whether the text in the list is that of an entry, which Enter then chooses.
bool ShowsEntry(const QComboBox& list)
{
    return list.currentIndex() >= 0 && list.itemText(list.currentIndex()) == list.currentText();
}

} // namespace

void frmQDW::BindLists()
{
    On(m_card->cboType, &QComboBox::activated, [this] { TypeChosen(); });
    On(m_card->cboType->lineEdit(), &QLineEdit::textEdited, [this] { TypeTyped(); });
    On(m_card->cboType->lineEdit(), &QLineEdit::returnPressed, [this] {
        if (ShowsEntry(*m_card->cboType))
            TypeChosen();
    });
    On(m_card->cboType->lineEdit(), &QLineEdit::editingFinished, [this] { m_numberBeforeType.reset(); });
    On(m_card->cboCardBack, &QComboBox::activated, [this] { CardBackChosen(); });
    On(m_character->cboStartArea, &QComboBox::activated, [this] { StartAreaChosen(); });
    On(m_character->cboStartArea->lineEdit(), &QLineEdit::textEdited, [this] { StartAreaTyped(); });
    On(m_character->cboStartArea->lineEdit(), &QLineEdit::returnPressed, [this] {
        if (ShowsEntry(*m_character->cboStartArea))
            StartAreaChosen();
    });
    On(m_character->cboCharacterCardback, &QComboBox::activated, [this] { CharacterBackChosen(); });
    On(m_set->cboSaveFormat, &QComboBox::activated, [this] { SaveFormatChosen(); });
}

/// The lists that no set changes.
void frmQDW::FillLists()
{
    const LoadingScope loading(*this);
    FillList(*m_card->cboNumber, CardNumbers());
    FillList(*m_character->cboAlignment, Alignments());
    FillList(*m_character->cboStartArea, StartAreas());
    FillList(*m_character->cboCharacterCardback, CharacterBackNames());
    for (QComboBox* attribute : {m_character->cboCharAttr0, m_character->cboCharAttr1,
                                 m_character->cboCharAttr2, m_character->cboCharAttr3})
        FillList(*attribute, AttributeValues());
    FillList(*m_set->cboSaveFormat, SaveFormats());
}

void frmQDW::FillCardTypeList()
{
    const LoadingScope loading(*this);
    const CardSet& set = m_workshop.Set;
    QStringList entries;
    for (int row = 1; row <= set.CardTypes.Count(); ++row)
        entries += TypeListEntry(set.CardTypes[row]);
    FillList(*m_card->cboType, entries);
    m_card->cboType->setCurrentIndex(1);
}

void frmQDW::FillCardBackList()
{
    const LoadingScope loading(*this);
    const CardSet& set = m_workshop.Set;
    QStringList entries;
    for (int row = 1; row <= set.CardBacks.Count(); ++row)
        entries += set.CardBacks[row].Name;
    FillList(*m_card->cboCardBack, entries << UserDefinedBack());
    m_card->cboCardBack->setCurrentIndex(set.LastCardBack - 1);
}

void frmQDW::TypeChosen()
{
    Card& card = Current<Card>();
    const auto row = static_cast<int16>(m_card->cboType->currentIndex() + 1);
    ChooseCardType(m_workshop.Set, card, row);
    ShowType();
}

/// A type of the card's own leaves the number alone, also where the name of another type was typed on the
/// way.
void frmQDW::TypeTyped()
{
    Card& card = Current<Card>();
    if (!m_numberBeforeType)
        m_numberBeforeType = card.Number;
    SelectTyped(*m_card->cboType);
    if (!TypeCardType(m_workshop.Set, card, m_card->cboType->currentText()))
        card.Number = *m_numberBeforeType;
    ShowType();
}

/// The parts of the type as they are, also on a card that has its type on one line; it joins them when it is
/// shown again.
void frmQDW::ShowType()
{
    const Card& card = Current<Card>();
    ShowTypeNames(m_workshop.Templates.Standard, card);
    m_workshop.Templates.Standard.lblNumber.Caption = card.Number;
    SetTextOf(*m_card->cboNumber, card.Number);
    m_preview->update();
}

void frmQDW::CardBackChosen()
{
    const QComboBox& list = *m_card->cboCardBack;
    if (list.currentText() == UserDefinedBack()) {
        if (const auto path = AskPicture("Choose picture", nullptr))
            AddUserBack(*path);
        return;
    }
    Card& card = Current<Card>();
    const auto row = static_cast<int16>(list.currentIndex() + 1);
    card.CardBack = row;
    if (const auto picture = Attempted([&] { return PictureOfBack(m_workshop, row); }))
        m_workshop.Templates.Standard.picBack.Surface->SetPicture(*picture);
    m_preview->update();
}

/// The new row goes to the table of the set, where all cards can take it. It is chosen at once.
void frmQDW::AddUserBack(const QString& path)
{
    QComboBox& list = *m_card->cboCardBack;
    try {
        const int16 row = AddCardBack(m_workshop.Set, path);
        const QString& name = m_workshop.Set.CardBacks[row].Name;
        list.insertItem(list.count() - 1, name);
        HintAtUnsavable(name);
    } catch (const RunTimeError&) {
        FillCardBackList(); // with the row that has no name, so that entries and rows stay in step
        throw;
    }
    list.setCurrentIndex(list.count() - 2);
    CardBackChosen();
}

void frmQDW::CharacterBackChosen()
{
    Character& character = Current<Character>();
    const auto back = static_cast<int16>(m_character->cboCharacterCardback->currentIndex());
    character.CardBack = back;
    if (back == UserDefinedCharacterBack) {
        if (const auto path = AskPicture("Choose picture", nullptr))
            SetCharacterBackPicture(*path);
        return;
    }
    character.CardBackPicture.clear();
    m_workshop.Templates.Character.picCharacterBack.Surface->SetPicture(m_workshop.Art.imgChB(back));
    m_preview->update();
}

void frmQDW::SetCharacterBackPicture(const QString& path)
{
    Character& character = Current<Character>();
    character.CardBack = UserDefinedCharacterBack;
    m_character->cboCharacterCardback->setCurrentIndex(UserDefinedCharacterBack);
    character.CardBackPicture = path;
    if (const auto picture = Loaded(path))
        m_workshop.Templates.Character.picCharacterBack.Surface->SetPicture(*picture);
    m_preview->update();
}

/// An entry is a region and a place, and the card has the place alone.
void frmQDW::StartAreaChosen()
{
    const QString entry = m_character->cboStartArea->currentText();
    SetStartArea(entry.section(QLatin1Char('-'), entry.contains(QLatin1Char('-')) ? 1 : 0));
}

void frmQDW::StartAreaTyped()
{
    SelectTyped(*m_character->cboStartArea);
    SetStartArea(m_character->cboStartArea->currentText());
}

void frmQDW::SetStartArea(const QString& area)
{
    Current<Character>().StartArea = area;
    m_workshop.Templates.Character.lblStart.Caption = area;
    m_preview->update();
}

void frmQDW::SaveFormatChosen()
{
    m_workshop.Set.Header.SaveFormat = static_cast<int16>(m_set->cboSaveFormat->currentIndex());
}

} // namespace deckforge
