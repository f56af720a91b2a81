#include "editor/BackPage.h"

#include "compose/NewBack.h"

#include <utility>

namespace deckforge {

BackPage::BackPage(EditorParts& parts, QWidget* parent)
    : RecordPage(parts, parent), m_boxes(parts.Works.Templates.NewBack)
{
    m_form.setupUi(m_widget);
    Bind({.Bar = m_form.hsbNewCardBack,
          .Position = m_form.lblCurrentNewCardBack,
          .Add = m_form.cmdNewCardBackAdd,
          .Delete = m_form.cmdNewCardBackDelete,
          .Name = m_form.txtNewCardBackName},
         MakeRows());
    On(m_form.cmdBackTextFont, &QAbstractButton::clicked, [this] { ChooseTextFont(); });
}

FieldRows<NewCardBack> BackPage::MakeRows()
{
    const Handler changed = [this] { Changed(); };
    return {
        .Texts = {{.Control = m_form.txtNewCardBackName, .Field = &NewCardBack::Name},
                  {.Control = m_form.txtBackText,
                   .Field = &NewCardBack::BackText,
                   .Changed = changed,
                   .QuietOnFill = true}},
        .Checks = {{.Control = m_form.chkNewBackPicture,
                    .Field = &NewCardBack::UsePicture,
                    .Changed = changed}},
        .Pictures = {{.Choose = m_form.cmdGetNewBackPicture,
                      .Clear = m_form.cmdDelNewBackPicture,
                      .Title = "Choose card back picture",
                      .Field = &NewCardBack::Picture,
                      .DropsAt = {&m_boxes.picNewBack},
                      .PathBox = m_form.txtNewBackPicture,
                      .Changed = changed,
                      .Cleared = changed}},
        .Colours = {{.Choose = m_form.cmdColor,
                     .Swatch = m_form.picInnerColor,
                     .Title = "Choose Inner Color",
                     .Field = [](NewCardBack& back) -> Colour& { return back.InnerColor; },
                     .Changed = changed},
                    {.Choose = m_form.cmdFontColor,
                     .Swatch = m_form.picFontColor,
                     .Title = "Choose Font Color",
                     .Field = [](NewCardBack& back) -> Colour& { return back.Font.Color; },
                     .Changed = changed},
                    {.Choose = m_form.cmdFrameColor,
                     .Swatch = m_form.picFrameColor,
                     .Title = "Choose Frame Color",
                     .Field = [](NewCardBack& back) -> Colour& { return back.FrameColor; },
                     .Changed = changed},
                    {.Choose = m_form.cmdNewBackColor,
                     .Swatch = m_form.picNewBackColor,
                     .Title = "Choose Outer Color",
                     .Field = [](NewCardBack& back) -> Colour& { return back.BackColor; },
                     .Changed = changed}},
    };
}

/// Kept: where there are backs, those of an opened set among them, slider and index stay as they were, unless
/// the index is none of theirs.
void BackPage::Enter()
{
    if (MakeFirst())
        m_steps.Bar->setRange(1, List().Count());
    else if (List().Current == 0 || List().Current > List().Count())
        m_parts.Document.GoTo<NewCardBack>(1);
    ShowCurrent();
}

void BackPage::Show(int16 index)
{
    Fill(); // first, since a failure leaves this function
    ShowNewCardBack(m_parts.Works, index);
}

void BackPage::Fill()
{
    FillFields();
    FillPosition();
    m_parts.Preview.update();
}

/// A missing picture is reported once, and not again at every letter of the text.
void BackPage::Changed()
{
    const QString picture = Current().Picture;
    try {
        ShowCurrent();
        m_missing.clear();
    } catch (const RunTimeError&) {
        if (std::exchange(m_missing, picture) != picture)
            throw;
    }
}

void BackPage::ChooseTextFont()
{
    if (const auto font = m_parts.User.AskFont(QStringLiteral("Choose font"), Current().Font))
        m_parts.Document.Edit<NewCardBack>(m_form.cmdBackTextFont->accessibleName(), &NewCardBack::Font,
                                           *font);
    Changed();
}

} // namespace deckforge
