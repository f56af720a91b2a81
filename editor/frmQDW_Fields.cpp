#include "dialogs/CardPreview.h"
#include "dialogs/ColourSwatch.h"
#include "editor/TextControl.h"
#include "editor/frmQDW_Tables.h"
#include "platform/CodePage.h"
#include "ui_fraCard.h"
#include "ui_fraCardBack.h"
#include "ui_fraCharacter.h"
#include "ui_fraLargeCard.h"
#include "ui_fraSet.h"

#include <QLabel>
#include <limits>

namespace deckforge {

template <>
frmQDW::Fields<Card> frmQDW::FieldsOf()
{
    const Ui::fraCard& form = *m_card;
    CardTemplate& t = m_workshop.Templates.Standard;
    return {
        .Texts = {{form.txtTitle, &Card::Title, Guard::None, &t.lblTitle, nullptr},
                  {form.cboNumber, &Card::Number, Guard::None, &t.lblNumber, nullptr},
                  {form.txtBold, &Card::BoldText, Guard::None, &t.lblBold, &frmQDW::BoldTextChanged},
                  {form.txtInfo, &Card::Info, Guard::None, &t.lblInformation, nullptr},
                  {form.txtArtist, &Card::Artist, Guard::NotLoading, nullptr, &frmQDW::ArtistChanged}},
        .Checks = {{form.chkOneLine, &Card::OneLine, &frmQDW::OneLineClicked},
                   {form.chkShowPicture, &Card::ShowPicture, &frmQDW::ShowPictureClicked<Card>},
                   {form.chkFrame, &Card::Frame, &frmQDW::FrameClicked<Card>},
                   {form.chkResize, &Card::Resize, &frmQDW::ResizeClicked}},
        .Counts = {{form.udCopy, &Card::Copies}},
        .Pictures = {{form.cmdGetPic, form.cmdDelPic, "Choose picture", &Card::Picture, &t.picImage,
                      form.txtPicture, &frmQDW::FocusOnTarget<Card>, nullptr},
                     {form.cmdBackPic, form.cmdDelBackPic, "Choose picture", &Card::Background, &t.picCard,
                      form.txtBackground, &frmQDW::ArtistChanged, &frmQDW::ArtistChanged}},
        .Colours = {{form.cmdColour, form.picColour, "Choose card background colour",
                     [](Card& card) -> Colour& { return card.Color; }, &t.picCard, &frmQDW::ArtistChanged}},
    };
}

template <>
frmQDW::Fields<LargeCard> frmQDW::FieldsOf()
{
    const Ui::fraLargeCard& form = *m_large;
    LargeCardTemplate& t = m_workshop.Templates.Large;
    return {
        .Texts = {{form.txtTitleLarge, &LargeCard::Title, Guard::None, &t.lblTitleLarge, nullptr},
                  {form.txtInfoLarge, &LargeCard::Info, Guard::None, &t.lblInformationLarge, nullptr}},
        .Checks = {{form.chkShowPictureLarge, &LargeCard::ShowPicture,
                    &frmQDW::ShowPictureClicked<LargeCard>},
                   {form.chkFrameLarge, &LargeCard::Frame, &frmQDW::FrameClicked<LargeCard>},
                   {form.chkResizeLarge, &LargeCard::Resize, &frmQDW::LargeResizeClicked}},
        .Counts = {{form.udCopyLarge, &LargeCard::Copies}},
        .Pictures = {{form.cmdGetPicLarge, form.cmdDelPicLarge, "Choose picture", &LargeCard::Picture,
                      &t.picImageLarge, form.txtPictureLarge, &frmQDW::FocusOnTarget<LargeCard>, nullptr},
                     {form.cmdBackPicLarge, form.cmdDelBackPicLarge, "Choose picture", &LargeCard::Background,
                      &t.picCardLarge, form.txtBackgroundLarge, nullptr, nullptr},
                     {form.cmdCardbackLarge, form.cmdDelCardbackLarge, "Choose picture", &LargeCard::CardBack,
                      &t.picBackLarge, form.txtCardbackLarge, nullptr, nullptr}},
        .Colours = {{form.cmdColourLarge, form.picColourLarge, "Choose card background colour",
                     [](LargeCard& card) -> Colour& { return card.Color; }, &t.picCardLarge, nullptr}},
    };
}

template <>
frmQDW::Fields<Character> frmQDW::FieldsOf()
{
    const Ui::fraCharacter& form = *m_character;
    CharacterTemplate& t = m_workshop.Templates.Character;
    Box& piece = m_workshop.Templates.PlayingPiece.picPlayingPieceImage;
    return {
        .Texts =
            {{form.txtCharName, &Character::Name, Guard::None, &t.lblCharacter, &frmQDW::NameChanged},
             {form.cboAlignment, &Character::Alignment, Guard::NotLoading, &t.lblAlignment, nullptr},
             {form.cboCharAttr0, CharacterAttributes[0], Guard::None, nullptr, &frmQDW::AttributeChanged<0>},
             {form.cboCharAttr1, CharacterAttributes[1], Guard::None, nullptr, &frmQDW::AttributeChanged<1>},
             {form.cboCharAttr2, CharacterAttributes[2], Guard::None, nullptr, &frmQDW::AttributeChanged<2>},
             {form.cboCharAttr3, CharacterAttributes[3], Guard::None, nullptr, &frmQDW::AttributeChanged<3>},
             {form.txtSpecialAbilities, &Character::SpecialAbilities, Guard::None, &t.lblSpecial, nullptr}},
        .Checks = {{form.chkShowPictureCharacter, &Character::ShowPicture,
                    &frmQDW::ShowPictureClicked<Character>},
                   {form.chkFrameCharacter, &Character::Frame, &frmQDW::FrameClicked<Character>}},
        .Counts = {},
        // A character's picture does not take the keyboard when it is chosen, as the other pictures do.
        .Pictures = {{form.cmdGetCharPic, form.cmdDelCharPic, "Choose characterpicture", &Character::Picture,
                      &t.picImageCharacter, form.txtPictureCharacter, nullptr, nullptr},
                     {form.cmdBackCharPic, form.cmdDelBackCharPic, "Choose background picture",
                      &Character::Background, &t.picBackgroundChar, form.txtBackgroundCharacter, nullptr,
                      nullptr},
                     {form.cmdGetPlayingPiecePic, form.cmdDelPlayingPiecePic, "Choose playing piece picture",
                      &Character::PlayingPiece, &piece, form.txtPlayingPiece, nullptr, nullptr}},
        .Colours = {},
    };
}

template <>
frmQDW::Fields<NewCardBack> frmQDW::FieldsOf()
{
    const Ui::fraCardBack& form = *m_back;
    const Action changed = &frmQDW::BackChanged;
    return {
        .Texts = {{form.txtNewCardBackName, &NewCardBack::Name, Guard::None, nullptr, nullptr},
                  {form.txtBackText, &NewCardBack::BackText, Guard::NotLoading, nullptr, changed}},
        .Checks = {{form.chkNewBackPicture, &NewCardBack::UsePicture, changed}},
        .Counts = {},
        .Pictures = {{form.cmdGetNewBackPicture, form.cmdDelNewBackPicture, "Choose card back picture",
                      &NewCardBack::Picture, nullptr, form.txtNewBackPicture, changed, changed}},
        .Colours = {{form.cmdColor, form.picInnerColor, "Choose Inner Color",
                     [](NewCardBack& back) -> Colour& { return back.InnerColor; }, nullptr, changed},
                    {form.cmdFontColor, form.picFontColor, "Choose Font Color",
                     [](NewCardBack& back) -> Colour& { return back.Font.Color; }, nullptr, changed},
                    {form.cmdFrameColor, form.picFrameColor, "Choose Frame Color",
                     [](NewCardBack& back) -> Colour& { return back.FrameColor; }, nullptr, changed},
                    {form.cmdNewBackColor, form.picNewBackColor, "Choose Outer Color",
                     [](NewCardBack& back) -> Colour& { return back.BackColor; }, nullptr, changed}},
    };
}

template <>
frmQDW::Fields<SetHeader> frmQDW::FieldsOf()
{
    const Ui::fraSet& form = *m_set;
    return {
        .Texts = {{form.txtSetname, &SetHeader::SetName, Guard::None, nullptr, &frmQDW::SetnameChanged},
                  {form.txtFilenamePrefix, &SetHeader::FilenamePrefix, Guard::None, nullptr, nullptr}},
        .Checks = {{form.chkAutonumber, &SetHeader::Autonumber, &frmQDW::AutonumberClicked},
                   {form.chkFileNr, &SetHeader::FileNr, nullptr},
                   {form.chkNoBack, &SetHeader::NoBack, &frmQDW::NoBackClicked},
                   {form.chkReplaceSpace, &SetHeader::ReplaceSpace, nullptr}},
        .Counts = {},
        .Pictures = {},
        .Colours = {},
    };
}

template <>
Card& frmQDW::Current()
{
    return m_workshop.Set.Cards[m_workshop.Set.Cards.Current];
}

template <>
LargeCard& frmQDW::Current()
{
    return m_workshop.Set.LargeCards[m_workshop.Set.LargeCards.Current];
}

template <>
Character& frmQDW::Current()
{
    return m_workshop.Set.Characters[m_workshop.Set.Characters.Current];
}

template <>
NewCardBack& frmQDW::Current()
{
    return m_workshop.Set.NewCardBacks[m_workshop.Set.NewCardBacks.Current];
}

template <>
SetHeader& frmQDW::Current()
{
    return m_workshop.Set.Header;
}

template <class Record>
void frmQDW::Bind(const TextField<Record>& row)
{
    const auto changed = [this, row] { TextChanged(row); };
    if (auto* const line = qobject_cast<QLineEdit*>(row.Control)) {
        line->setMaxLength(std::numeric_limits<int>::max()); // the field has no limit either
        On(line, &QLineEdit::textChanged, changed);
    } else if (auto* const list = qobject_cast<QComboBox*>(row.Control)) {
        list->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
        On(list, &QComboBox::editTextChanged, changed);
    } else {
        On(static_cast<QPlainTextEdit*>(row.Control), &QPlainTextEdit::textChanged, changed);
    }
}

template <class Record>
void frmQDW::Bind(const CheckField<Record>& row)
{
    On(row.Control, &QCheckBox::clicked, [this, row] {
        Current<Record>().*row.Field = row.Control->isChecked();
        Run(row.After);
        m_preview->update();
    });
}

template <class Record>
void frmQDW::Bind(const CountField<Record>& row)
{
    On(row.Control, &QSpinBox::valueChanged, [this, row] {
        if (!m_loading) // a number past what the box holds stays in the record
            Current<Record>().*row.Field = static_cast<int16>(row.Control->value());
    });
}

template <class Record>
void frmQDW::TextChanged(const TextField<Record>& row)
{
    if (row.When == Guard::NotLoading && m_loading)
        return;
    QString& text = Current<Record>().*row.Field;
    if (!m_loading) { // what fills the control stays as it is, also where the control cannot hold all of it
        text = TextOf(*row.Control);
        HintAtUnsavable(text);
    }
    if (row.Preview)
        row.Preview->Caption = text;
    Run(row.After);
    m_preview->update();
}

/// Says at once why the next save would fail.
void frmQDW::HintAtUnsavable(const QString& text)
{
    if (!IsInCodePage(text))
        m_hint->show(); // with its text when the handler ends
}

/// The hint stays until the set can be saved.
void frmQDW::RenewHint()
{
    QString hint;
    try {
        static_cast<void>(SetFileBytes(m_workshop.Set, Unwritable::Fail));
    } catch (const RunTimeError& error) {
        hint = error.Description();
    }
    m_hint->setText(hint);
    m_hint->setToolTip(hint);
    m_hint->setHidden(hint.isEmpty());
}

template <class Record>
void frmQDW::Bind()
{
    const Fields<Record> fields = FieldsOf<Record>();
    for (const auto& row : fields.Texts)
        Bind(row);
    for (const auto& row : fields.Checks)
        Bind(row);
    for (const auto& row : fields.Counts)
        Bind(row);
}

void frmQDW::BindFields()
{
    // Before the rows, which carry the completed text.
    On(m_card->txtBold, &QLineEdit::textChanged, [this] { CompleteBoldText(); });
    Bind<Card>();
    Bind<LargeCard>();
    Bind<Character>();
    Bind<NewCardBack>();
    Bind<SetHeader>();
}

template <class Record>
void frmQDW::Fill()
{
    const Fields<Record> fields = FieldsOf<Record>();
    Record& record = Current<Record>();
    for (const auto& row : fields.Texts)
        SetTextOf(*row.Control, record.*row.Field);
    for (const auto& row : fields.Checks)
        row.Control->setChecked(record.*row.Field);
    for (const auto& row : fields.Counts)
        row.Control->setValue(record.*row.Field);
    for (const auto& row : fields.Pictures)
        ShowPath(*row.PathBox, record.*row.Field);
    for (const auto& row : fields.Colours)
        row.Swatch->SetColour(QColor(ToRgb(row.Field(record))));
}

void frmQDW::FillCard()
{
    const LoadingScope loading(*this);
    Fill<Card>();
    const Card& card = Current<Card>();
    m_numberBeforeType.reset();
    ShowEntry(*m_card->cboType, card.Type + card.SubType);
    m_card->cboCardBack->setCurrentIndex(card.CardBack - 1);
    TellFrameSize();
    FillPosition<Card>();
    m_preview->update();
}

void frmQDW::FillLargeCard()
{
    const LoadingScope loading(*this);
    Fill<LargeCard>();
    TellLargeFrameSize();
    FillPosition<LargeCard>();
    m_preview->update();
}

void frmQDW::FillCharacter()
{
    const LoadingScope loading(*this);
    Fill<Character>();
    const Character& character = Current<Character>();
    ShowEntry(*m_character->cboStartArea, character.StartArea);
    m_character->cboCharacterCardback->setCurrentIndex(character.CardBack);
    TellCharacterFrameSize();
    FillPosition<Character>();
    m_preview->update();
}

void frmQDW::FillNewCardBack()
{
    const LoadingScope loading(*this);
    Fill<NewCardBack>();
    FillPosition<NewCardBack>();
    m_preview->update();
}

void frmQDW::FillSet()
{
    const LoadingScope loading(*this);
    Fill<SetHeader>();
    const SetHeader& header = Current<SetHeader>();
    ShowPath(*m_set->txtSymbol, header.Symbol);
    ShowText(*m_set->txtSaveTo, header.SaveTo, header.SaveTo);
    m_set->cboSaveFormat->setCurrentIndex(header.SaveFormat);
}

} // namespace deckforge
