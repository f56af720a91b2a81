#include "editor/frmQDW.h"

#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "editor/CardPreview.h"
#include "editor/TextControl.h"
#include "platform/Paths.h"
#include "ui_fraCard.h"
#include "ui_fraSet.h"

#include <limits>

namespace deckforge {

namespace {

void ShowText(QLineEdit& control, const QString& text, const QString& toolTip)
{
    control.setText(text);
    control.setToolTip(toolTip);
    control.setCursorPosition(0); // a text that is too long for its box shows its start
}

/// A path box shows the name; the whole path is its tool tip.
void ShowPath(QLineEdit& control, const QString& path)
{
    ShowText(control, NamePart(path), path);
}

} // namespace

std::vector<frmQDW::TextField<Card>> frmQDW::CardTexts()
{
    const Ui::fraCard& form = *m_card;
    CardTemplate& card = m_workshop.Templates.Standard;
    return {
        {form.txtTitle, &Card::Title, Guard::None, &card.lblTitle, nullptr},
        {form.txtArtist, &Card::Artist, Guard::NotLoading, nullptr, &frmQDW::ArtistChanged},
        {form.txtBold, &Card::BoldText, Guard::None, &card.lblBold, &frmQDW::BoldTextChanged},
        {form.txtInfo, &Card::Info, Guard::None, &card.lblInformation, nullptr},
    };
}

std::vector<frmQDW::CheckField<Card>> frmQDW::CardChecks()
{
    const Ui::fraCard& form = *m_card;
    return {
        {form.chkOneLine, &Card::OneLine, &frmQDW::OneLineClicked},
        {form.chkShowPicture, &Card::ShowPicture, &frmQDW::ShowPictureClicked},
        {form.chkFrame, &Card::Frame, &frmQDW::FrameClicked},
    };
}

std::vector<frmQDW::TextField<SetHeader>> frmQDW::SetTexts()
{
    const Ui::fraSet& form = *m_set;
    return {
        {form.txtSetname, &SetHeader::SetName, Guard::None, nullptr, &frmQDW::SetnameChanged},
        {form.txtFilenamePrefix, &SetHeader::FilenamePrefix, Guard::None, nullptr, nullptr},
    };
}

std::vector<frmQDW::CheckField<SetHeader>> frmQDW::SetChecks()
{
    const Ui::fraSet& form = *m_set;
    return {
        {form.chkAutonumber, &SetHeader::Autonumber, &frmQDW::AutonumberClicked},
        {form.chkFileNr, &SetHeader::FileNr, nullptr},
        {form.chkNoBack, &SetHeader::NoBack, &frmQDW::NoBackClicked},
        {form.chkReplaceSpace, &SetHeader::ReplaceSpace, nullptr},
    };
}

template <>
Card& frmQDW::Current<Card>()
{
    return m_workshop.Set.Cards[m_workshop.Set.CurrentCard];
}

template <>
SetHeader& frmQDW::Current<SetHeader>()
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
    } else {
        On(static_cast<QPlainTextEdit*>(row.Control), &QPlainTextEdit::textChanged, changed);
    }
}

template <class Record>
void frmQDW::Bind(const CheckField<Record>& row)
{
    On(row.Control, &QCheckBox::clicked, [this, row] {
        Current<Record>().*row.Field = row.Control->isChecked();
        if (row.After)
            (this->*row.After)();
        m_preview->update();
    });
}

template <class Record>
void frmQDW::TextChanged(const TextField<Record>& row)
{
    if (row.When == Guard::NotLoading && m_loading)
        return;
    const QString text = TextOf(*row.Control);
    Current<Record>().*row.Field = text;
    if (row.Preview)
        row.Preview->Caption = text;
    if (row.After)
        (this->*row.After)();
    m_preview->update();
}

void frmQDW::BindFields()
{
    // Before the rows, which carry the completed text.
    On(m_card->txtBold, &QLineEdit::textChanged, [this] { CompleteBoldText(); });
    for (const auto& row : CardTexts())
        Bind(row);
    for (const auto& row : CardChecks())
        Bind(row);
    for (const auto& row : SetTexts())
        Bind(row);
    for (const auto& row : SetChecks())
        Bind(row);
    On(m_set->cboSaveFormat, &QComboBox::activated, [this] { SaveFormatChosen(); });
}

void frmQDW::FillCard()
{
    const LoadingScope loading(*this);
    const Card card = Current<Card>(); // a copy: some handlers write back what they are filled with
    for (const auto& row : CardTexts())
        SetTextOf(*row.Control, card.*row.Field);
    for (const auto& row : CardChecks())
        row.Control->setChecked(card.*row.Field);
    ShowPath(*m_card->txtPicture, card.Picture);
    ShowPath(*m_card->txtBackground, card.Background);
    m_card->lblPicDim->setText(FrameSizeText(m_workshop.Templates.Standard.picFrame));
    FillPosition(m_workshop.Set.CurrentCard);
}

void frmQDW::FillSet()
{
    const LoadingScope loading(*this);
    const SetHeader header = Current<SetHeader>();
    for (const auto& row : SetTexts())
        SetTextOf(*row.Control, header.*row.Field);
    for (const auto& row : SetChecks())
        row.Control->setChecked(header.*row.Field);
    ShowPath(*m_set->txtSymbol, header.Symbol);
    ShowText(*m_set->txtSaveTo, header.SaveTo, header.SaveTo);
    m_set->cboSaveFormat->setCurrentIndex(header.SaveFormat);
}

/// The first letter of an attribute stands for its name; typing on replaces the rest of it.
void frmQDW::CompleteBoldText()
{
    QLineEdit& txtBold = *m_card->txtBold;
    const QString text = txtBold.text();
    const auto complete = [&](const QString& word, int selected) {
        txtBold.setText(word);
        txtBold.setSelection(1, selected);
    };
    if (text == QLatin1String("S"))
        complete(QStringLiteral("STRENGTH "), 8);
    else if (text == QLatin1String("C"))
        complete(QStringLiteral("CRAFT "), 5);
}

void frmQDW::BoldTextChanged()
{
    PlaceBoldText(m_workshop.Templates.Standard);
}

void frmQDW::ArtistChanged()
{
    DrawArtistCredit(m_workshop, Current<Card>().Artist);
}

void frmQDW::OneLineClicked()
{
    ShowCard(m_workshop.Set.CurrentCard);
}

void frmQDW::ShowPictureClicked()
{
    ShowPictureFrame(m_workshop.Templates.Standard, Current<Card>().ShowPicture);
}

void frmQDW::FrameClicked()
{
    m_workshop.Templates.Standard.picFrame.Border =
        Current<Card>().Frame ? BorderStyle::Single : BorderStyle::None;
}

void frmQDW::SetnameChanged()
{
    QString name = m_workshop.Set.Header.SetName;
    name.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); // a mark of Qt's that would not be shown
    setWindowTitle(name + QStringLiteral(" - Varnhelm Deck Forge"));
}

void frmQDW::AutonumberClicked()
{
    ShowNumbers(m_workshop);
}

void frmQDW::NoBackClicked()
{
    m_workshop.Templates.Standard.picBack.Visible = !m_workshop.Set.Header.NoBack;
}

void frmQDW::SaveFormatChosen()
{
    m_workshop.Set.Header.SaveFormat = static_cast<int16>(m_set->cboSaveFormat->currentIndex());
}

} // namespace deckforge
