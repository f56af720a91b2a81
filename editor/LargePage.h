#pragma once

#include "editor/RecordPage.h"
#include "ui_fraLargeCard.h"

namespace deckforge {

/// The tab of the large cards.
class LargePage final : public RecordPage<LargeCard> {
public:
    LargePage(EditorParts& parts, QWidget* parent);

    void Enter() override;
    void SetShown(bool isShown) override;
    void Show(int16 index) override;
    void ShowFrameSize() override;
    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const override { return {m_form.txtTitleLarge}; }

private:
    void AddFields();
    [[nodiscard]] QString DraggedText(const LargeCard&) const override { return {}; }
    void SwitchSide();

    LargeCardTemplate& m_boxes;
    Ui::fraLargeCard m_form;
};

} // namespace deckforge
