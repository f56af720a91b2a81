// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/Page.h"

#include "commands/OutputCommands.h"
#include "compose/PicturePlacement.h"
#include "compose/StandardCard.h"
#include "core/CardVocabulary.h"
#include "core/Vocabulary.h"
#include "editor/RecordPage.h"
#include "ui_fraCard.h"

#include <QScopeGuard>

namespace deckforge {

namespace {

/// The tab of the standard cards.
class StandardPage final : public RecordPage<Card> {
public:
    StandardPage(EditorParts& parts, QWidget* parent)
        : RecordPage(parts, parent), m_boxes(parts.Works.Templates.Standard)
    {
        m_form.setupUi(m_widget);
        FillList(*m_form.cboNumber, CardNumbers());
        AddSlider(m_form.hsbCard, m_form.lblCurrentCard, m_form.lblCardTitle);
        AddButtons(m_form.cmdCardAdd, m_form.cmdCardDelete, m_form.txtTitle, m_form.cmdSort);
        // Must run before the field takes the text.
        On(m_form.txtBold, &QLineEdit::textChanged, [this] { CompleteBoldText(); });
        AddFields();
        OnEntry(
            m_form.cboType, [this] { TypeChosen(); }, [this] { TypeTyped(); });
        On(m_form.cboType->lineEdit(), &QLineEdit::editingFinished, [this] { m_numberBeforeType.reset(); });
        On(m_form.cboCardBack, &QComboBox::activated, [this] { BackChosen(); });
    }

    void SetShown(bool isShown) override
    {
        m_boxes.picCard.Visible = isShown;
        m_boxes.picBack.Visible = isShown; // ShowCard hides it for sets without backs
    }

    void TakeSet() override
    {
        RecordPage::TakeSet();
        FillBackList();
        const CardSet& set = m_parts.Document.Set();
        QStringList entries;
        for (int row = 1; row <= set.CardTypes.Count(); ++row)
            entries += TypeListEntry(set.CardTypes[row]);
        FillList(*m_form.cboType, entries);
        m_form.cboType->setCurrentIndex(1);
    }

    void Show(int16 index) override
    {
        // A failure was reported. The controls are filled nevertheless, since they edit this record.
        ShowCompositionFailure(m_parts.User, ShowCard(m_parts.Works, index));
        Fill();
    }

    void ShowFrameSize() override { m_form.lblPicDim->setText(FrameSizeText(m_boxes.picFrame)); }

    bool TakeDrop(const Box& box, const QString& path) override
    {
        if (&box != &m_boxes.picBack)
            return RecordPage::TakeDrop(box, path);
        AddUserBack(path);
        return true;
    }

    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const override
    {
        return {m_form.txtTitle, m_form.cboType, m_form.cboNumber, m_form.txtBold};
    }

private:
    void AddFields()
    {
        // The credit is drawn on the background.
        const auto showArtist = [this] {
            DrawArtistCredit(m_boxes, m_parts.Works.Surfaces.picArtist, Current(),
                             m_parts.Document.Set().Header.ArtistColor);
        };
        AddText(m_form.txtTitle, &Card::Title, {.Preview = &m_boxes.lblTitle});
        AddText(m_form.cboNumber, &Card::Number, {.Preview = &m_boxes.lblNumber});
        AddText(m_form.txtBold, &Card::BoldText,
                {.Preview = &m_boxes.lblBold, .Changed = [this] { PlaceBoldText(m_boxes); }});
        AddText(m_form.txtInfo, &Card::Info, {.Preview = &m_boxes.lblInformation});
        AddText(m_form.txtArtist, &Card::Artist, {.Changed = showArtist, .QuietOnFill = true});
        AddCheck(m_form.chkOneLine, &Card::OneLine, [this] { ShowCurrent(); });
        AddFrame(m_form.chkShowPicture, m_form.chkFrame, m_boxes, m_boxes.picFrame);
        AddCheck(m_form.chkResize, &Card::Resize, [this] { ResizeClicked(); });
        AddCount(m_form.udCopy, &Card::Copies);
        AddPicture({m_form.cmdGetPic, m_form.cmdDelPic, m_form.txtPicture, m_form.cmdFitPic}, &Card::Picture,
                   {.Target = &m_boxes.picImage,
                    .Frame = &m_boxes.picFrame,
                    .Changed = [this] { m_parts.Preview.FocusOn(m_boxes.picImage); }},
                   {&Card::PictureLeft, &Card::PictureTop});
        AddPicture({m_form.cmdBackPic, m_form.cmdDelBackPic, m_form.txtBackground, m_form.cmdFitBackPic},
                   &Card::Background,
                   {.Target = &m_boxes.picCard, .Changed = showArtist, .Cleared = showArtist});
        AddColour({m_form.cmdColour, m_form.picColour, "Choose card background colour"},
                  [](Card& card) -> Colour& { return card.Color; },
                  {.Preview = &m_boxes.picCard, .Changed = showArtist});
    }

    void FillOthers() override
    {
        m_numberBeforeType.reset();
        const Card& card = Current();
        ShowEntry(*m_form.cboType, card.Type + card.SubType);
        m_form.cboCardBack->setCurrentIndex(card.CardBack - 1);
    }

    /// "Sword (OBJECT- Magic)".
    [[nodiscard]] QString DraggedText(const Card& card) const override
    {
        const QString type = (card.Type + QLatin1Char(' ') + card.SubType).trimmed();
        return QStringLiteral("%1 (%2)").arg(card.Title, type);
    }

    void FillBackList()
    {
        const CardSet& set = m_parts.Document.Set();
        QStringList entries;
        for (int row = 1; row <= set.CardBacks.Count(); ++row)
            entries += set.CardBacks[row].Name;
        FillList(*m_form.cboCardBack, entries << UserDefinedBack());
        m_form.cboCardBack->setCurrentIndex(set.LastCardBack - 1);
    }

    /// Completes the first letter of an attribute; typing replaces the selected rest.
    void CompleteBoldText()
    {
        if (m_isFilling) // keep a card's single letter
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

    void ResizeClicked()
    {
        if (Current().Resize)
            Edit(m_form.chkResize, [this](Card& card) { CentrePicture(m_boxes, card); });
        ShowCurrent();
    }

    void TypeChosen()
    {
        const auto row = static_cast<int16>(m_form.cboType->currentIndex() + 1);
        Edit(m_form.cboType, [&](Card& card) { ChooseCardType(m_parts.Document.Set(), card, row); });
        ShowType();
    }

    /// A free type does not change the number, even if the name of a known type was typed on the way.
    void TypeTyped()
    {
        if (!m_numberBeforeType)
            m_numberBeforeType = Current().Number;
        Edit(m_form.cboType, [this](Card& card) {
            if (!TypeCardType(m_parts.Document.Set(), card, m_form.cboType->currentText()))
                card.Number = *m_numberBeforeType;
        });
        ShowType();
    }

    /// Shows the parts of the type separately, even on cards with OneLine; they are joined when the card is
    /// shown again.
    void ShowType()
    {
        const Card& card = Current();
        ShowTypeNames(m_boxes, card);
        m_boxes.lblNumber.Caption = card.Number;
        SetTextOf(*m_form.cboNumber, card.Number);
        m_parts.Preview.update();
    }

    void BackChosen()
    {
        const QComboBox& list = *m_form.cboCardBack;
        if (list.currentText() == UserDefinedBack()) {
            if (const auto path = AskPicture("Choose picture", nullptr))
                AddUserBack(*path);
            return;
        }
        const auto row = static_cast<int16>(list.currentIndex() + 1);
        Edit(&list, &Card::CardBack, row);
        const auto load = [&] {
            return PictureOfBack(m_parts.Document.Set(), row, m_parts.Works.Art, m_parts.Works.Pictures);
        };
        if (const auto picture = PictureIfAny(load))
            m_boxes.picBack.Surface->SetPicture(*picture);
        m_parts.Preview.update();
    }

    /// Adds a row to the set's table of backs, and chooses it for the card.
    void AddUserBack(const QString& path)
    {
        QComboBox& list = *m_form.cboCardBack;
        {
            // Also on failure, which leaves a row without a name and the card its back.
            const auto fill = qScopeGuard([&] {
                FillBackList();
                list.setCurrentIndex(Current().CardBack - 1);
            });
            m_parts.Document.Edit(list.accessibleName(), [&](CardSet& set) { AddCardBack(set, path); });
        }
        list.setCurrentIndex(list.count() - 2);
        BackChosen();
    }

    CardTemplate& m_boxes;
    Ui::fraCard m_form;
    std::optional<QString> m_numberBeforeType; ///< number before the user started to type a type
};

} // namespace

std::unique_ptr<Page> MakeStandardPage(EditorParts& parts, QWidget* parent)
{
    return std::make_unique<StandardPage>(parts, parent);
}

} // namespace deckforge
