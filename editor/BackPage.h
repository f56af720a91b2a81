#pragma once

#include "editor/RecordPage.h"
#include "ui_fraCardBack.h"

namespace deckforge {

/// The tab of the card backs that the user designs.
class BackPage final : public RecordPage<NewCardBack> {
public:
    BackPage(EditorParts& parts, QWidget* parent);

    void Enter() override;
    void SetShown(bool isShown) override { m_boxes.picNewBack.Visible = isShown; }
    void TakeSet() override {} // Kept: the slider keeps its range
    void Show(int16 index) override;
    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const override
    {
        return {m_form.txtNewCardBackName};
    }

private:
    void AddFields();
    void Changed();
    void ChooseTextFont();

    NewBackTemplate& m_boxes;
    Ui::fraCardBack m_form;
    QString m_missing; ///< the picture that was reported as missing
};

} // namespace deckforge
