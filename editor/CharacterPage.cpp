// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/Page.h"

#include "commands/OutputCommands.h"
#include "compose/CharacterCard.h"
#include "core/Vocabulary.h"
#include "editor/RecordPage.h"
#include "ui_fraCharacter.h"

namespace deckforge {

namespace {

/// The tab of the characters and their playing pieces.
class CharacterPage final : public RecordPage<Character> {
public:
    CharacterPage(EditorParts& parts, QWidget* parent)
        : RecordPage(parts, parent), m_boxes(parts.Works.Templates.Character),
          m_piece(parts.Works.Templates.PlayingPiece)
    {
        m_form.setupUi(m_widget);
        FillList(*m_form.cboAlignment, Alignments());
        FillList(*m_form.cboStartArea, StartAreas());
        FillList(*m_form.cboCharacterCardback, CharacterBackNames());
        for (QComboBox* attribute : AttributeLists())
            FillList(*attribute, AttributeValues());
        AddSlider(m_form.hsbCharacter, m_form.lblCurrentCardCharacter, m_form.lblChar);
        AddButtons(m_form.cmdCharacterAdd, m_form.cmdCharacterDelete, m_form.txtCharName,
                   m_form.cmdSortCharacter);
        AddFields();
        OnEntry(
            m_form.cboStartArea, [this] { StartAreaChosen(); },
            [this] { SetStartArea(m_form.cboStartArea->currentText()); });
        On(m_form.cboCharacterCardback, &QComboBox::activated, [this] { BackChosen(); });
        On(m_form.chkShowCharacterBack, &QCheckBox::clicked, [this] {
            if (m_widget->isVisibleTo(m_widget->parentWidget()))
                SwitchSide(); // the back stays hidden while the playing piece is shown
        });
        On(m_form.chkShowPlayingPiece, &QCheckBox::clicked, [this] { SwitchSide(); });
    }

    void SetShown(bool isShown) override
    {
        m_boxes.picCharacter.Visible = isShown;
        m_boxes.picCharacterBack.Visible = false;
        m_piece.picPlayingPiece.Visible = false;
        m_form.chkShowCharacterBack->setChecked(false);
        m_form.chkShowPlayingPiece->setChecked(false);
    }

    void Show(int16 index) override
    {
        // Kept: a cleared symbol stays until a character is shown.
        if (m_parts.Document.Set().Header.Symbol.isEmpty())
            m_boxes.picSymbolCharacter.Visible = false;
        ShowCompositionFailure(m_parts.User, ShowCharacter(m_parts.Works, index));
        Fill();
    }

    void ShowFrameSize() override
    {
        m_form.lblPicDimChar->setText(CharacterFrameSizeText(m_boxes.picFrameCharacter));
        m_form.lblPicDimPlay->setText(CharacterFrameSizeText(m_piece.picPlayingPieceFrame));
    }

    bool TakeDrop(const Box& box, const QString& path) override
    {
        if (&box != &m_boxes.picCharacterBack)
            return RecordPage::TakeDrop(box, path);
        SetBackPicture(path);
        return true;
    }

    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const override
    {
        std::vector<QWidget*> boxes = {m_form.txtCharName, m_form.cboStartArea, m_form.cboAlignment};
        for (QComboBox* attribute : AttributeLists())
            boxes.push_back(attribute);
        return boxes;
    }

private:
    [[nodiscard]] std::array<QComboBox*, 4> AttributeLists() const
    {
        return {m_form.cboCharAttr0, m_form.cboCharAttr1, m_form.cboCharAttr2, m_form.cboCharAttr3};
    }

    void AddFields()
    {
        AddText(m_form.txtCharName, &Character::Name,
                {.Preview = &m_boxes.lblCharacter,
                 .Changed = [this] { m_piece.lblPlayingPieceName.Caption = Current().Name; }});
        AddText(m_form.cboAlignment, &Character::Alignment,
                {.Preview = &m_boxes.lblAlignment, .QuietOnFill = true});
        AddText(m_form.txtSpecialAbilities, &Character::SpecialAbilities, {.Preview = &m_boxes.lblSpecial});
        const auto lists = AttributeLists();
        for (std::size_t i = 0; i < lists.size(); ++i) {
            const auto draw = [this, i] {
                DrawCharAttribute(m_boxes, m_parts.Works.Surfaces.picCharAttribute, static_cast<int>(i),
                                  Current().*CharacterAttributes[i]);
            };
            AddText(lists[i], CharacterAttributes[i], {.Changed = draw});
        }
        AddFrame(m_form.chkShowPictureCharacter, m_form.chkFrameCharacter, m_boxes,
                 m_boxes.picFrameCharacter);
        // Unlike on the other tabs the picture does not get the focus.
        AddPicture(
            {m_form.cmdGetCharPic, m_form.cmdDelCharPic, m_form.txtPictureCharacter, m_form.cmdFitCharPic},
            &Character::Picture,
            {.Title = "Choose characterpicture",
             .Target = &m_boxes.picImageCharacter,
             .Frame = &m_boxes.picFrameCharacter},
            {&Character::PictureLeft, &Character::PictureTop});
        AddPicture({m_form.cmdBackCharPic, m_form.cmdDelBackCharPic, m_form.txtBackgroundCharacter,
                    m_form.cmdFitBackCharPic},
                   &Character::Background,
                   {.Title = "Choose background picture",
                    .Target = &m_boxes.picBackgroundChar,
                    .DropArea = &m_boxes.picCharacter});
        AddPicture({m_form.cmdGetPlayingPiecePic, m_form.cmdDelPlayingPiecePic, m_form.txtPlayingPiece,
                    m_form.cmdFitPlayingPiecePic},
                   &Character::PlayingPiece,
                   {.Title = "Choose playing piece picture",
                    .Target = &m_piece.picPlayingPieceImage,
                    .Frame = &m_piece.picPlayingPieceFrame,
                    .DropArea = &m_piece.picPlayingPiece,
                    .StartsAtFrame = false},
                   {&Character::PlayingPieceLeft, &Character::PlayingPieceTop});
    }

    void FillOthers() override
    {
        ShowEntry(*m_form.cboStartArea, Current().StartArea);
        m_form.cboCharacterCardback->setCurrentIndex(Current().CardBack);
    }

    void SwitchSide()
    {
        const bool isPiece = m_form.chkShowPlayingPiece->isChecked();
        const bool isBack = m_form.chkShowCharacterBack->isChecked();
        m_piece.picPlayingPiece.Visible = isPiece;
        m_boxes.picCharacter.Visible = !isPiece && !isBack;
        m_boxes.picCharacterBack.Visible = !isPiece && isBack;
        m_parts.Preview.SettleFocus();
    }

    void BackChosen()
    {
        const auto back = static_cast<int16>(m_form.cboCharacterCardback->currentIndex());
        Edit(m_form.cboCharacterCardback, [&](Character& character) {
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

    void SetBackPicture(const QString& path)
    {
        Edit(m_form.cboCharacterCardback, [&](Character& character) {
            character.CardBack = UserDefinedCharacterBack;
            character.CardBackPicture = path;
        });
        m_form.cboCharacterCardback->setCurrentIndex(UserDefinedCharacterBack);
        if (const auto picture = LoadedPicture(m_parts, path))
            m_boxes.picCharacterBack.Surface->SetPicture(*picture);
        m_parts.Preview.update();
    }

    /// Entries are "region-place"; the card keeps only the place.
    void StartAreaChosen()
    {
        const QString entry = m_form.cboStartArea->currentText();
        SetStartArea(entry.section(QLatin1Char('-'), entry.contains(QLatin1Char('-')) ? 1 : 0));
    }

    void SetStartArea(const QString& area)
    {
        Edit(m_form.cboStartArea, &Character::StartArea, area);
        m_boxes.lblStart.Caption = area;
        m_parts.Preview.update();
    }

    CharacterTemplate& m_boxes;
    PlayingPieceTemplate& m_piece;
    Ui::fraCharacter m_form;
};

} // namespace

std::unique_ptr<Page> MakeCharacterPage(EditorParts& parts, QWidget* parent)
{
    return std::make_unique<CharacterPage>(parts, parent);
}

} // namespace deckforge
