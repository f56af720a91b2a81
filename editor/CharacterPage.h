#pragma once

#include "editor/RecordPage.h"
#include "ui_fraCharacter.h"

namespace deckforge {

/// The tab of the characters and their playing pieces.
class CharacterPage final : public RecordPage<Character> {
public:
    CharacterPage(EditorParts& parts, QWidget* parent);

    void SetShown(bool isShown) override;
    void Show(int16 index) override;
    void ShowFrameSize() override;
    bool TakeDrop(const Box& box, const QString& path) override;
    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const override;

private:
    [[nodiscard]] std::array<QComboBox*, 4> AttributeLists() const;
    void AddFields();
    void FillOthers() override;
    void SwitchSide();
    void BackChosen();
    void SetBackPicture(const QString& path);
    void StartAreaChosen();
    void SetStartArea(const QString& area);

    CharacterTemplate& m_boxes;
    PlayingPieceTemplate& m_piece;
    Ui::fraCharacter m_form;
};

} // namespace deckforge
