#include "editor/LargePage.h"

#include "compose/LargeCard.h"
#include "compose/StandardCard.h"

namespace deckforge {

LargePage::LargePage(EditorParts& parts, QWidget* parent)
    : RecordPage(parts, parent), m_boxes(parts.Works.Templates.Large)
{
    m_form.setupUi(m_widget);
    AddSlider(m_form.hsbCardLarge, m_form.lblCurrentCardLarge, m_form.lblCardTitleLarge);
    m_positionFollows = false;
    AddButtons(m_form.cmdCardAddLarge, m_form.cmdCardDeleteLarge, m_form.txtTitleLarge, m_form.cmdSortLarge);
    AddFields();
    On(m_form.chkShowBackLarge, &QCheckBox::clicked, [this] { SwitchSide(); });
}

void LargePage::AddFields()
{
    AddText(m_form.txtTitleLarge, &LargeCard::Title, {.Preview = &m_boxes.lblTitleLarge});
    AddText(m_form.txtInfoLarge, &LargeCard::Info, {.Preview = &m_boxes.lblInformationLarge});
    AddFrame(m_form.chkShowPictureLarge, m_form.chkFrameLarge, m_boxes, m_boxes.picFrameLarge);
    AddCheck(m_form.chkResizeLarge, &LargeCard::Resize, [this] { ShowCurrent(); });
    AddCount(m_form.udCopyLarge, &LargeCard::Copies);
    AddPicture({m_form.cmdGetPicLarge, m_form.cmdDelPicLarge, m_form.txtPictureLarge}, &LargeCard::Picture,
               {.Target = &m_boxes.picImageLarge, .Frame = &m_boxes.picFrameLarge, .Changed = [this] {
                    m_parts.Preview.FocusOn(m_boxes.picImageLarge);
                }});
    AddPicture({m_form.cmdBackPicLarge, m_form.cmdDelBackPicLarge, m_form.txtBackgroundLarge},
               &LargeCard::Background, {.Target = &m_boxes.picCardLarge});
    AddPicture({m_form.cmdCardbackLarge, m_form.cmdDelCardbackLarge, m_form.txtCardbackLarge},
               &LargeCard::CardBack, {.Target = &m_boxes.picBackLarge});
    AddColour({m_form.cmdColourLarge, m_form.picColourLarge, "Choose card background colour"},
              [](LargeCard& card) -> Colour& { return card.Color; }, {.Preview = &m_boxes.picCardLarge});
}

void LargePage::Enter()
{
    RecordPage::Enter();
    m_slider->setRange(1, List().Count()); // every time
}

void LargePage::SetShown(bool isShown)
{
    m_boxes.picCardLarge.Visible = isShown;
    m_boxes.picBackLarge.Visible = false;
    m_form.chkShowBackLarge->setChecked(false);
}

void LargePage::Show(int16 index)
{
    static_cast<void>(ShowLargeCard(m_parts.Works, index));
    Fill();
}

void LargePage::ShowFrameSize()
{
    m_form.lblPicDimLarge->setText(FrameSizeText(m_boxes.picFrameLarge));
}

void LargePage::SwitchSide()
{
    if (!m_widget->isVisibleTo(m_widget->parentWidget()))
        return;
    m_boxes.picBackLarge.Visible = m_form.chkShowBackLarge->isChecked();
    m_boxes.picCardLarge.Visible = !m_boxes.picBackLarge.Visible;
    m_parts.Preview.SettleFocus();
}

} // namespace deckforge
