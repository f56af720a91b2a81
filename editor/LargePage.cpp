#include "editor/LargePage.h"

#include "commands/OutputCommands.h"
#include "compose/LargeCard.h"
#include "compose/StandardCard.h"
#include "dialogs/frmCardList.h"

namespace deckforge {

LargePage::LargePage(EditorParts& parts, QWidget* parent)
    : RecordPage(parts, parent), m_boxes(parts.Works.Templates.Large)
{
    m_form.setupUi(m_widget);
    Bind({.Bar = m_form.hsbCardLarge,
          .Position = m_form.lblCurrentCardLarge,
          .Dragged = m_form.lblCardTitleLarge,
          .DraggedText = [](const LargeCard&) { return QString(); },
          .FollowsSlider = false,
          .Add = m_form.cmdCardAddLarge,
          .Delete = m_form.cmdCardDeleteLarge,
          .Name = m_form.txtTitleLarge},
         MakeRows());
    On(m_form.chkShowBackLarge, &QCheckBox::clicked, [this] { SwitchSide(); });
    On(m_form.cmdSortLarge, &QAbstractButton::clicked, [this] { ChooseFromList(); });
}

FieldRows<LargeCard> LargePage::MakeRows()
{
    return {
        .Texts = {{.Control = m_form.txtTitleLarge,
                   .Field = &LargeCard::Title,
                   .Preview = &m_boxes.lblTitleLarge},
                  {.Control = m_form.txtInfoLarge,
                   .Field = &LargeCard::Info,
                   .Preview = &m_boxes.lblInformationLarge}},
        .Checks = {{.Control = m_form.chkShowPictureLarge,
                    .Field = &LargeCard::ShowPicture,
                    .Changed =
                        [this] {
                            ShowPictureFrame(m_boxes, Current().ShowPicture);
                            m_parts.Preview.SettleFocus();
                        }},
                   {.Control = m_form.chkFrameLarge,
                    .Field = &LargeCard::Frame,
                    .Changed = [this] { m_boxes.picFrameLarge.SetOutlined(Current().Frame); }},
                   {.Control = m_form.chkResizeLarge,
                    .Field = &LargeCard::Resize,
                    .Changed = [this] { ShowCurrent(); }}},
        .Counts = {{.Control = m_form.udCopyLarge, .Field = &LargeCard::Copies}},
        .Pictures = {{.Choose = m_form.cmdGetPicLarge,
                      .Clear = m_form.cmdDelPicLarge,
                      .Field = &LargeCard::Picture,
                      .Target = &m_boxes.picImageLarge,
                      .IsFramed = true,
                      .DropsAt = {&m_boxes.picFrameLarge},
                      .PathBox = m_form.txtPictureLarge,
                      .Changed = [this] { m_parts.Preview.FocusOn(m_boxes.picImageLarge); }},
                     {.Choose = m_form.cmdBackPicLarge,
                      .Clear = m_form.cmdDelBackPicLarge,
                      .Field = &LargeCard::Background,
                      .Target = &m_boxes.picCardLarge,
                      .PathBox = m_form.txtBackgroundLarge},
                     {.Choose = m_form.cmdCardbackLarge,
                      .Clear = m_form.cmdDelCardbackLarge,
                      .Field = &LargeCard::CardBack,
                      .Target = &m_boxes.picBackLarge,
                      .PathBox = m_form.txtCardbackLarge}},
        .Colours = {{.Choose = m_form.cmdColourLarge,
                     .Swatch = m_form.picColourLarge,
                     .Title = "Choose card background colour",
                     .Field = [](LargeCard& card) -> Colour& { return card.Color; },
                     .Preview = &m_boxes.picCardLarge}},
    };
}

void LargePage::Enter()
{
    MakeFirst();
    ShowCurrent();
    m_steps.Bar->setRange(1, List().Count()); // at every look
}

void LargePage::SetShown(bool isShown)
{
    m_boxes.picCardLarge.Visible = isShown;
    m_boxes.picBackLarge.Visible = false;
    m_form.chkShowBackLarge->setChecked(false);
}

void LargePage::Show(int16 index)
{
    ShowComposed(m_parts.User, ShowLargeCard(m_parts.Works, index));
    Fill();
}

void LargePage::Fill()
{
    FillFields();
    ShowFrameSize();
    FillPosition();
    m_parts.Preview.update();
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

void LargePage::ChooseFromList()
{
    if (const auto chosen = ChooseFromCardList(m_parts.Document.Set(), Kind(), m_widget->window()))
        GoTo(*chosen);
}

} // namespace deckforge
