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
    void TakeSet() override { SetMaximumQuietly(); }
    void Show(int16 index) override;
    void Fill() override;
    void ShowFrameSize() override;

    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const { return {m_form.txtTitleLarge}; }

private:
    [[nodiscard]] FieldRows<LargeCard> MakeRows();
    void SwitchSide();
    void ChooseFromList();

    LargeCardTemplate& m_boxes;
    Ui::fraLargeCard m_form;
};

} // namespace deckforge
