#include "editor/CharacterPage.h"

#include "commands/OutputCommands.h"
#include "compose/CharacterCard.h"
#include "core/Vocabulary.h"
#include "dialogs/frmCardList.h"
#include "editor/Lists.h"

namespace deckforge {

CharacterPage::CharacterPage(EditorParts& parts, QWidget* parent)
    : RecordPage(parts, parent), m_boxes(parts.Works.Templates.Character),
      m_piece(parts.Works.Templates.PlayingPiece)
{
    m_form.setupUi(m_widget);
    FillList(*m_form.cboAlignment, Alignments());
    FillList(*m_form.cboStartArea, StartAreas());
    FillList(*m_form.cboCharacterCardback, CharacterBackNames());
    for (QComboBox* attribute : AttributeLists())
        FillList(*attribute, AttributeValues());
    Bind({.Bar = m_form.hsbCharacter,
          .Position = m_form.lblCurrentCardCharacter,
          .Dragged = m_form.lblChar,
          .DraggedText = [](const Character& character) { return character.Name; },
          .Add = m_form.cmdCharacterAdd,
          .Delete = m_form.cmdCharacterDelete,
          .Name = m_form.txtCharName},
         MakeRows());
    On(m_form.cboStartArea, &QComboBox::activated, [this] { StartAreaChosen(); });
    On(m_form.cboStartArea->lineEdit(), &QLineEdit::textEdited, [this] { StartAreaTyped(); });
    On(m_form.cboStartArea->lineEdit(), &QLineEdit::returnPressed, [this] {
        if (ShowsEntry(*m_form.cboStartArea))
            StartAreaChosen();
    });
    On(m_form.cboCharacterCardback, &QComboBox::activated, [this] { BackChosen(); });
    On(m_form.chkShowCharacterBack, &QCheckBox::clicked, [this] {
        if (m_widget->isVisibleTo(m_widget->parentWidget()))
            SwitchSide(); // the back stays hidden while the piece is shown
    });
    On(m_form.chkShowPlayingPiece, &QCheckBox::clicked, [this] { SwitchSide(); });
    On(m_form.cmdSortCharacter, &QAbstractButton::clicked, [this] { ChooseFromList(); });
}

std::array<QComboBox*, 4> CharacterPage::AttributeLists() const
{
    return {m_form.cboCharAttr0, m_form.cboCharAttr1, m_form.cboCharAttr2, m_form.cboCharAttr3};
}

FieldRows<Character> CharacterPage::MakeRows()
{
    FieldRows<Character> rows = {
        .Texts = {{.Control = m_form.txtCharName,
                   .Field = &Character::Name,
                   .Preview = &m_boxes.lblCharacter,
                   .Changed = [this] { m_piece.lblPlayingPieceName.Caption = Current().Name; }},
                  {.Control = m_form.cboAlignment,
                   .Field = &Character::Alignment,
                   .Preview = &m_boxes.lblAlignment,
                   .QuietOnFill = true},
                  {.Control = m_form.txtSpecialAbilities,
                   .Field = &Character::SpecialAbilities,
                   .Preview = &m_boxes.lblSpecial}},
        .Checks = {{.Control = m_form.chkShowPictureCharacter,
                    .Field = &Character::ShowPicture,
                    .Changed =
                        [this] {
                            ShowPictureFrame(m_boxes, Current().ShowPicture);
                            m_parts.Preview.SettleFocus();
                        }},
                   {.Control = m_form.chkFrameCharacter,
                    .Field = &Character::Frame,
                    .Changed = [this] { m_boxes.picFrameCharacter.SetOutlined(Current().Frame); }}},
        // Unlike the other pictures these do not take the keyboard when they are chosen.
        .Pictures = {{.Choose = m_form.cmdGetCharPic,
                      .Clear = m_form.cmdDelCharPic,
                      .Title = "Choose characterpicture",
                      .Field = &Character::Picture,
                      .Target = &m_boxes.picImageCharacter,
                      .IsFramed = true,
                      .DropsAt = {&m_boxes.picFrameCharacter},
                      .PathBox = m_form.txtPictureCharacter},
                     {.Choose = m_form.cmdBackCharPic,
                      .Clear = m_form.cmdDelBackCharPic,
                      .Title = "Choose background picture",
                      .Field = &Character::Background,
                      .Target = &m_boxes.picBackgroundChar,
                      .DropsAt = {&m_boxes.picCharacter},
                      .PathBox = m_form.txtBackgroundCharacter},
                     {.Choose = m_form.cmdGetPlayingPiecePic,
                      .Clear = m_form.cmdDelPlayingPiecePic,
                      .Title = "Choose playing piece picture",
                      .Field = &Character::PlayingPiece,
                      .Target = &m_piece.picPlayingPieceImage,
                      .IsFramed = true,
                      .StartsAtFrame = false,
                      .DropsAt = {&m_piece.picPlayingPieceFrame, &m_piece.picPlayingPiece},
                      .PathBox = m_form.txtPlayingPiece}},
    };
    const auto lists = AttributeLists();
    for (std::size_t i = 0; i < lists.size(); ++i) {
        const auto draw = [this, i] {
            DrawCharAttribute(m_parts.Works, static_cast<int>(i), Current().*CharacterAttributes[i]);
        };
        rows.Texts.push_back({.Control = lists[i], .Field = CharacterAttributes[i], .Changed = draw});
    }
    return rows;
}

void CharacterPage::Enter()
{
    if (MakeFirst())
        m_steps.Bar->setRange(1, List().Count());
    ShowCurrent();
}

void CharacterPage::SetShown(bool isShown)
{
    m_boxes.picCharacter.Visible = isShown;
    m_boxes.picCharacterBack.Visible = false;
    m_piece.picPlayingPiece.Visible = false;
    m_form.chkShowCharacterBack->setChecked(false);
    m_form.chkShowPlayingPiece->setChecked(false);
}

void CharacterPage::Show(int16 index)
{
    if (m_parts.Document.Set()
            .Header.Symbol.isEmpty()) // Kept: a cleared symbol stays until a character is shown
        m_boxes.picSymbolCharacter.Visible = false;
    ShowComposed(m_parts.User, ShowCharacter(m_parts.Works, index));
    Fill();
}

void CharacterPage::Fill()
{
    FillFields();
    const QScopedValueRollback filling(m_isFilling, true);
    const Character& character = Current();
    ShowEntry(*m_form.cboStartArea, character.StartArea);
    m_form.cboCharacterCardback->setCurrentIndex(character.CardBack);
    ShowFrameSize();
    FillPosition();
    m_parts.Preview.update();
}

void CharacterPage::ShowFrameSize()
{
    m_form.lblPicDimChar->setText(CharacterFrameSizeText(m_boxes.picFrameCharacter));
    m_form.lblPicDimPlay->setText(CharacterFrameSizeText(m_piece.picPlayingPieceFrame));
}

bool CharacterPage::TakeDrop(const Box& box, const QString& path)
{
    if (&box != &m_boxes.picCharacterBack)
        return RecordPage::TakeDrop(box, path);
    SetBackPicture(path);
    return true;
}

std::vector<QWidget*> CharacterPage::BoxesToReplace() const
{
    std::vector<QWidget*> boxes = {m_form.txtCharName, m_form.cboStartArea, m_form.cboAlignment};
    for (QComboBox* attribute : AttributeLists())
        boxes.push_back(attribute);
    return boxes;
}

void CharacterPage::SwitchSide()
{
    const bool isPiece = m_form.chkShowPlayingPiece->isChecked();
    const bool isBack = m_form.chkShowCharacterBack->isChecked();
    m_piece.picPlayingPiece.Visible = isPiece;
    m_boxes.picCharacter.Visible = !isPiece && !isBack;
    m_boxes.picCharacterBack.Visible = !isPiece && isBack;
    m_parts.Preview.SettleFocus();
}

void CharacterPage::BackChosen()
{
    const auto back = static_cast<int16>(m_form.cboCharacterCardback->currentIndex());
    const QString name = m_form.cboCharacterCardback->accessibleName();
    m_parts.Document.Edit<Character>(name, [&](Character& character) {
        character.CardBack = back;
        if (back != UserDefinedCharacterBack)
            character.CardBackPicture.clear();
    });
    if (back == UserDefinedCharacterBack) {
        if (const auto path = AskPicture("Choose picture", nullptr))
            SetBackPicture(*path);
        return;
    }
    m_boxes.picCharacterBack.Surface->SetPicture(m_parts.Works.Art.imgChB(back));
    m_parts.Preview.update();
}

void CharacterPage::SetBackPicture(const QString& path)
{
    m_parts.Document.Edit<Character>(m_form.cboCharacterCardback->accessibleName(),
                                     [&](Character& character) {
                                         character.CardBack = UserDefinedCharacterBack;
                                         character.CardBackPicture = path;
                                     });
    m_form.cboCharacterCardback->setCurrentIndex(UserDefinedCharacterBack);
    if (const auto picture = LoadedPicture(m_parts, path))
        m_boxes.picCharacterBack.Surface->SetPicture(*picture);
    m_parts.Preview.update();
}

/// An entry is a region and a place, and the card has the place alone.
void CharacterPage::StartAreaChosen()
{
    const QString entry = m_form.cboStartArea->currentText();
    SetStartArea(entry.section(QLatin1Char('-'), entry.contains(QLatin1Char('-')) ? 1 : 0));
}

void CharacterPage::StartAreaTyped()
{
    SelectTyped(*m_form.cboStartArea);
    SetStartArea(m_form.cboStartArea->currentText());
}

void CharacterPage::SetStartArea(const QString& area)
{
    m_parts.Document.Edit<Character>(m_form.cboStartArea->accessibleName(), &Character::StartArea, area);
    m_boxes.lblStart.Caption = area;
    m_parts.Preview.update();
}

void CharacterPage::ChooseFromList()
{
    if (const auto chosen = ChooseFromCardList(m_parts.Document.Set(), Kind(), m_widget->window()))
        GoTo(*chosen);
}

} // namespace deckforge
