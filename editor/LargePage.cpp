// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/Page.h"

#include "commands/OutputCommands.h"
#include "compose/LargeCard.h"
#include "compose/StandardCard.h"
#include "editor/RecordPage.h"
#include "ui_fraLargeCard.h"

namespace deckforge {

namespace {

/// The tab of the large cards.
class LargePage final : public RecordPage<LargeCard> {
public:
    LargePage(EditorParts& parts, QWidget* parent)
        : RecordPage(parts, parent), m_boxes(parts.Works.Templates.Large)
    {
        m_form.setupUi(m_widget);
        AddSlider(m_form.hsbCardLarge, m_form.lblCurrentCardLarge, m_form.lblCardTitleLarge);
        m_positionFollows = false;
        AddButtons(m_form.cmdCardAddLarge, m_form.cmdCardDeleteLarge, m_form.txtTitleLarge,
                   m_form.cmdSortLarge);
        AddFields();
        On(m_form.chkShowBackLarge, &QCheckBox::clicked, [this] { SwitchSide(); });
    }

    void Enter() override
    {
        RecordPage::Enter();
        m_slider->setRange(1, List().Count()); // every time
    }

    void SetShown(bool isShown) override
    {
        m_boxes.picCardLarge.Visible = isShown;
        m_boxes.picBackLarge.Visible = false;
        m_form.chkShowBackLarge->setChecked(false);
    }

    void Show(int16 index) override
    {
        ShowCompositionFailure(m_parts.User, ShowLargeCard(m_parts.Works, index));
        Fill();
    }

    void ShowFrameSize() override { m_form.lblPicDimLarge->setText(FrameSizeText(m_boxes.picFrameLarge)); }

    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const override { return {m_form.txtTitleLarge}; }

private:
    void AddFields()
    {
        AddText(m_form.txtTitleLarge, &LargeCard::Title, {.Preview = &m_boxes.lblTitleLarge});
        AddText(m_form.txtInfoLarge, &LargeCard::Info, {.Preview = &m_boxes.lblInformationLarge});
        AddFrame(m_form.chkShowPictureLarge, m_form.chkFrameLarge, m_boxes, m_boxes.picFrameLarge);
        AddCheck(m_form.chkResizeLarge, &LargeCard::Resize, [this] { ShowCurrent(); });
        AddCount(m_form.udCopyLarge, &LargeCard::Copies);
        AddPicture(
            {m_form.cmdGetPicLarge, m_form.cmdDelPicLarge, m_form.txtPictureLarge, m_form.cmdFitPicLarge},
            &LargeCard::Picture,
            {.Target = &m_boxes.picImageLarge,
             .Frame = &m_boxes.picFrameLarge,
             .Changed = [this] { m_parts.Preview.FocusOn(m_boxes.picImageLarge); }},
            {&LargeCard::PictureLeft, &LargeCard::PictureTop});
        AddPicture({m_form.cmdBackPicLarge, m_form.cmdDelBackPicLarge, m_form.txtBackgroundLarge,
                    m_form.cmdFitBackPicLarge},
                   &LargeCard::Background, {.Target = &m_boxes.picCardLarge});
        AddPicture({m_form.cmdCardbackLarge, m_form.cmdDelCardbackLarge, m_form.txtCardbackLarge,
                    m_form.cmdFitCardbackLarge},
                   &LargeCard::CardBack, {.Target = &m_boxes.picBackLarge});
        AddColour({m_form.cmdColourLarge, m_form.picColourLarge, "Choose card background colour"},
                  [](LargeCard& card) -> Colour& { return card.Color; }, {.Preview = &m_boxes.picCardLarge});
    }

    [[nodiscard]] QString DraggedText(const LargeCard&) const override { return {}; }
    void SwitchSide()
    {
        if (!m_widget->isVisibleTo(m_widget->parentWidget()))
            return;
        m_boxes.picBackLarge.Visible = m_form.chkShowBackLarge->isChecked();
        m_boxes.picCardLarge.Visible = !m_boxes.picBackLarge.Visible;
        m_parts.Preview.SettleFocus();
    }

    LargeCardTemplate& m_boxes;
    Ui::fraLargeCard m_form;
};

} // namespace

std::unique_ptr<Page> MakeLargePage(EditorParts& parts, QWidget* parent)
{
    return std::make_unique<LargePage>(parts, parent);
}

} // namespace deckforge
