#include "editor/StandardPage.h"

#include "commands/OutputCommands.h"
#include "compose/PicturePlacement.h"
#include "compose/StandardCard.h"
#include "core/CardVocabulary.h"
#include "core/Vocabulary.h"
#include "dialogs/frmCardList.h"
#include "editor/Lists.h"

namespace deckforge {

namespace {

/// "Sword (OBJECT- Magic)".
QString TitleAndType(const Card& card)
{
    const QString type = (card.Type + QLatin1Char(' ') + card.SubType).trimmed();
    return QStringLiteral("%1 (%2)").arg(card.Title, type);
}

} // namespace

StandardPage::StandardPage(EditorParts& parts, QWidget* parent)
    : RecordPage(parts, parent), m_boxes(parts.Works.Templates.Standard)
{
    m_form.setupUi(m_widget);
    FillList(*m_form.cboNumber, CardNumbers());
    // Before the rows, which store the completed text.
    On(m_form.txtBold, &QLineEdit::textChanged, [this] { CompleteBoldText(); });
    Bind({.Bar = m_form.hsbCard,
          .Position = m_form.lblCurrentCard,
          .Dragged = m_form.lblCardTitle,
          .DraggedText = &TitleAndType,
          .Add = m_form.cmdCardAdd,
          .Delete = m_form.cmdCardDelete,
          .Name = m_form.txtTitle},
         MakeRows());
    On(m_form.cboType, &QComboBox::activated, [this] { TypeChosen(); });
    On(m_form.cboType->lineEdit(), &QLineEdit::textEdited, [this] { TypeTyped(); });
    On(m_form.cboType->lineEdit(), &QLineEdit::editingFinished, [this] { m_numberBeforeType.reset(); });
    On(m_form.cboType->lineEdit(), &QLineEdit::returnPressed, [this] {
        if (ShowsEntry(*m_form.cboType))
            TypeChosen();
    });
    On(m_form.cboCardBack, &QComboBox::activated, [this] { BackChosen(); });
    On(m_form.cmdSort, &QAbstractButton::clicked, [this] { ChooseFromList(); });
}

FieldRows<Card> StandardPage::MakeRows()
{
    return {
        .Texts = {{.Control = m_form.txtTitle, .Field = &Card::Title, .Preview = &m_boxes.lblTitle},
                  {.Control = m_form.cboNumber, .Field = &Card::Number, .Preview = &m_boxes.lblNumber},
                  {.Control = m_form.txtBold,
                   .Field = &Card::BoldText,
                   .Preview = &m_boxes.lblBold,
                   .Changed = [this] { PlaceBoldText(m_boxes); }},
                  {.Control = m_form.txtInfo, .Field = &Card::Info, .Preview = &m_boxes.lblInformation},
                  {.Control = m_form.txtArtist,
                   .Field = &Card::Artist,
                   .Changed = [this] { ShowArtist(); },
                   .QuietOnFill = true}},
        .Checks =
            {{.Control = m_form.chkOneLine, .Field = &Card::OneLine, .Changed = [this] { OneLineClicked(); }},
             {.Control = m_form.chkShowPicture,
              .Field = &Card::ShowPicture,
              .Changed =
                  [this] {
                      ShowPictureFrame(m_boxes, Current().ShowPicture);
                      m_parts.Preview.SettleFocus();
                  }},
             {.Control = m_form.chkFrame,
              .Field = &Card::Frame,
              .Changed = [this] { m_boxes.picFrame.SetOutlined(Current().Frame); }},
             {.Control = m_form.chkResize, .Field = &Card::Resize, .Changed = [this] { ResizeClicked(); }}},
        .Counts = {{.Control = m_form.udCopy, .Field = &Card::Copies}},
        .Pictures = {{.Choose = m_form.cmdGetPic,
                      .Clear = m_form.cmdDelPic,
                      .Field = &Card::Picture,
                      .Target = &m_boxes.picImage,
                      .IsFramed = true,
                      .DropsAt = {&m_boxes.picFrame},
                      .PathBox = m_form.txtPicture,
                      .Changed = [this] { m_parts.Preview.FocusOn(m_boxes.picImage); }},
                     {.Choose = m_form.cmdBackPic,
                      .Clear = m_form.cmdDelBackPic,
                      .Field = &Card::Background,
                      .Target = &m_boxes.picCard,
                      .PathBox = m_form.txtBackground,
                      .Changed = [this] { ShowArtist(); },
                      .Cleared = [this] { ShowArtist(); }}},
        .Colours = {{.Choose = m_form.cmdColour,
                     .Swatch = m_form.picColour,
                     .Title = "Choose card background colour",
                     .Field = [](Card& card) -> Colour& { return card.Color; },
                     .Preview = &m_boxes.picCard,
                     .Changed = [this] { ShowArtist(); }}},
    };
}

void StandardPage::Enter()
{
    ShowCurrent();
}

void StandardPage::SetShown(bool isShown)
{
    m_boxes.picCard.Visible = isShown;
    m_boxes.picBack.Visible = isShown; // also where the set goes without backs, until it is shown
}

void StandardPage::TakeSet()
{
    SetMaximumQuietly();
    FillBackList();
    FillTypeList();
}

void StandardPage::Show(int16 index)
{
    ShowComposed(m_parts.User, ShowCard(m_parts.Works, index));
    // After a failure, too: what is typed into the controls changes this record.
    Fill();
}

void StandardPage::Fill()
{
    FillFields();
    const QScopedValueRollback filling(m_isFilling, true);
    m_numberBeforeType.reset();
    const Card& card = Current();
    ShowEntry(*m_form.cboType, card.Type + card.SubType);
    m_form.cboCardBack->setCurrentIndex(card.CardBack - 1);
    ShowFrameSize();
    FillPosition();
    m_parts.Preview.update();
}

void StandardPage::ShowFrameSize()
{
    m_form.lblPicDim->setText(FrameSizeText(m_boxes.picFrame));
}

bool StandardPage::TakeDrop(const Box& box, const QString& path)
{
    if (&box != &m_boxes.picBack)
        return RecordPage::TakeDrop(box, path);
    AddUserBack(path);
    return true;
}

void StandardPage::FillTypeList()
{
    const QScopedValueRollback filling(m_isFilling, true);
    const CardSet& set = m_parts.Document.Set();
    QStringList entries;
    for (int row = 1; row <= set.CardTypes.Count(); ++row)
        entries += TypeListEntry(set.CardTypes[row]);
    FillList(*m_form.cboType, entries);
    m_form.cboType->setCurrentIndex(1);
}

void StandardPage::FillBackList()
{
    const QScopedValueRollback filling(m_isFilling, true);
    const CardSet& set = m_parts.Document.Set();
    QStringList entries;
    for (int row = 1; row <= set.CardBacks.Count(); ++row)
        entries += set.CardBacks[row].Name;
    FillList(*m_form.cboCardBack, entries << UserDefinedBack());
    m_form.cboCardBack->setCurrentIndex(set.LastCardBack - 1);
}

void StandardPage::ShowArtist()
{
    DrawArtistCredit(m_parts.Works, m_parts.Document.Set().Cards.Current);
}

std::vector<QWidget*> StandardPage::BoxesToReplace() const
{
    return {m_form.txtTitle, m_form.cboType, m_form.cboNumber, m_form.txtBold};
}

void StandardPage::StartTyping()
{
    m_form.txtTitle->setFocus();
    m_form.txtTitle->selectAll();
}

/// The first letter of an attribute stands for its name; typing on replaces the rest of it.
void StandardPage::CompleteBoldText()
{
    if (m_isFilling) // a card that has the letter alone keeps it
        return;
    QLineEdit& txtBold = *m_form.txtBold;
    const auto complete = [&](const QString& word, int selected) {
        txtBold.setText(word);
        txtBold.setSelection(1, selected);
    };
    const QString text = txtBold.text();
    if (text == QLatin1String("S"))
        complete(QStringLiteral("STRENGTH "), 8);
    else if (text == QLatin1String("C"))
        complete(QStringLiteral("CRAFT "), 5);
}

void StandardPage::ResizeClicked()
{
    if (Current().Resize)
        m_parts.Document.Edit<Card>(m_form.chkResize->accessibleName(),
                                    [this](Card&) { CentrePicture(m_parts.Works); });
    ShowCurrent();
}

void StandardPage::TypeChosen()
{
    const auto row = static_cast<int16>(m_form.cboType->currentIndex() + 1);
    m_parts.Document.Edit<Card>(m_form.cboType->accessibleName(),
                                [&](Card& card) { ChooseCardType(m_parts.Document.Set(), card, row); });
    ShowType();
}

/// A type of the card's own leaves the number alone, also where the name of another type was typed on the
/// way.
void StandardPage::TypeTyped()
{
    if (!m_numberBeforeType)
        m_numberBeforeType = Current().Number;
    SelectTyped(*m_form.cboType);
    m_parts.Document.Edit<Card>(m_form.cboType->accessibleName(), [this](Card& card) {
        if (!TypeCardType(m_parts.Document.Set(), card, m_form.cboType->currentText()))
            card.Number = *m_numberBeforeType;
    });
    ShowType();
}

/// The parts of the type as they are, also on a card that has its type on one line; it joins them when it is
/// shown again.
void StandardPage::ShowType()
{
    const Card& card = Current();
    ShowTypeNames(m_boxes, card);
    m_boxes.lblNumber.Caption = card.Number;
    SetTextOf(*m_form.cboNumber, card.Number);
    m_parts.Preview.update();
}

void StandardPage::BackChosen()
{
    const QComboBox& list = *m_form.cboCardBack;
    if (list.currentText() == UserDefinedBack()) {
        if (const auto path = AskPicture("Choose picture", nullptr))
            AddUserBack(*path);
        return;
    }
    const auto row = static_cast<int16>(list.currentIndex() + 1);
    m_parts.Document.Edit<Card>(list.accessibleName(), &Card::CardBack, row);
    if (const auto picture = Attempted([&] { return PictureOfBack(m_parts.Works, row); }))
        m_boxes.picBack.Surface->SetPicture(*picture);
    m_parts.Preview.update();
}

/// The new row goes to the table of the set, where all cards can take it. It is chosen at once.
void StandardPage::AddUserBack(const QString& path)
{
    QComboBox& list = *m_form.cboCardBack;
    try {
        m_parts.Document.Edit(list.accessibleName(), [&](CardSet& set) { AddCardBack(set, path); });
        const CardSet& set = m_parts.Document.Set();
        list.insertItem(list.count() - 1, set.CardBacks[set.CardBacks.Count()].Name);
    } catch (const RunTimeError&) {
        FillBackList(); // with the row that has no name, so that entries and rows stay in step
        throw;
    }
    list.setCurrentIndex(list.count() - 2);
    BackChosen();
}

void StandardPage::ChooseFromList()
{
    if (const auto chosen = ChooseFromCardList(m_parts.Document.Set(), Kind(), m_widget->window()))
        GoTo(*chosen);
}

} // namespace deckforge
