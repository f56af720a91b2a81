// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/Page.h"

#include "compose/NewBack.h"
#include "editor/RecordPage.h"
#include "ui_fraCardBack.h"

#include <utility>

namespace deckforge {

namespace {

/// The tab of the user-designed card backs.
class BackPage final : public RecordPage<NewCardBack> {
public:
    BackPage(EditorParts& parts, QWidget* parent)
        : RecordPage(parts, parent), m_boxes(parts.Works.Templates.NewBack)
    {
        m_form.setupUi(m_widget);
        AddSlider(m_form.hsbNewCardBack, m_form.lblCurrentNewCardBack);
        AddButtons(m_form.cmdNewCardBackAdd, m_form.cmdNewCardBackDelete, m_form.txtNewCardBackName);
        AddFields();
        On(m_form.cmdBackTextFont, &QAbstractButton::clicked, [this] { ChooseTextFont(); });
    }

    /// Kept: after a set is opened the slider keeps its range, and the current index is kept if it exists.
    void Enter() override
    {
        if (const int16 current = List().Current;
            List().Count() > 0 && (current == 0 || current > List().Count()))
            m_parts.Document.GoTo(Kind(), 1);
        RecordPage::Enter();
    }

    void SetShown(bool isShown) override { m_boxes.picNewBack.Visible = isShown; }
    void TakeSet() override {} // Kept: the slider keeps its range
    void Show(int16 index) override
    {
        Fill(); // first, since a failure leaves this function
        ShowNewCardBack(m_parts.Works, index);
    }

    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const override
    {
        return {m_form.txtNewCardBackName};
    }

private:
    void AddFields()
    {
        const Handler changed = [this] { Changed(); };
        AddText(m_form.txtNewCardBackName, &NewCardBack::Name);
        AddText(m_form.txtBackText, &NewCardBack::BackText, {.Changed = changed, .QuietOnFill = true});
        AddCheck(m_form.chkNewBackPicture, &NewCardBack::UsePicture, changed);
        AddPicture({m_form.cmdGetNewBackPicture, m_form.cmdDelNewBackPicture, m_form.txtNewBackPicture,
                    m_form.cmdFitNewBackPicture},
                   &NewCardBack::Picture,
                   {.Title = "Choose card back picture",
                    .DropArea = &m_boxes.picNewBack,
                    .FitSize = m_boxes.picNewBack.Surface->Size(),
                    .Changed = changed,
                    .Cleared = changed});
        AddColour({m_form.cmdColor, m_form.picInnerColor, "Choose Inner Color"},
                  [](NewCardBack& back) -> Colour& { return back.InnerColor; }, {.Changed = changed});
        AddColour({m_form.cmdFontColor, m_form.picFontColor, "Choose Font Color"},
                  [](NewCardBack& back) -> Colour& { return back.Font.Color; }, {.Changed = changed});
        AddColour({m_form.cmdFrameColor, m_form.picFrameColor, "Choose Frame Color"},
                  [](NewCardBack& back) -> Colour& { return back.FrameColor; }, {.Changed = changed});
        AddColour({m_form.cmdNewBackColor, m_form.picNewBackColor, "Choose Outer Color"},
                  [](NewCardBack& back) -> Colour& { return back.BackColor; }, {.Changed = changed});
    }

    /// A missing picture is reported once, not at every letter of the text.
    void Changed()
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

    void ChooseTextFont()
    {
        FontSpec font = Current().Font;
        ChooseFont(m_parts.User, font);
        Edit(m_form.cmdBackTextFont, &NewCardBack::Font, font);
        Changed();
    }

    NewBackTemplate& m_boxes;
    Ui::fraCardBack m_form;
    QString m_missing; ///< the picture that was reported as missing
};

} // namespace

std::unique_ptr<Page> MakeBackPage(EditorParts& parts, QWidget* parent)
{
    return std::make_unique<BackPage>(parts, parent);
}

} // namespace deckforge
