#pragma once

#include "editor/RecordPage.h"
#include "ui_fraCard.h"

namespace deckforge {

/// The tab of the standard cards.
class StandardPage final : public RecordPage<Card> {
public:
    StandardPage(EditorParts& parts, QWidget* parent);

    void Enter() override;
    void SetShown(bool isShown) override;
    void TakeSet() override;
    void Show(int16 index) override;
    void Fill() override;
    void ShowFrameSize() override;
    bool TakeDrop(const Box& box, const QString& path) override;

    void FillTypeList();
    void FillBackList();
    /// The credit depends on the background and the colour of the card as well.
    void ShowArtist();
    /// The boxes that select their text when they get the keyboard.
    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const;
    void StartTyping();

private:
    [[nodiscard]] FieldRows<Card> MakeRows();
    void CompleteBoldText();
    void OneLineClicked() { ShowCurrent(); }
    void ResizeClicked();
    void TypeChosen();
    void TypeTyped();
    void ShowType();
    void BackChosen();
    void AddUserBack(const QString& path);
    void ChooseFromList();

    CardTemplate& m_boxes;
    Ui::fraCard m_form;
    std::optional<QString> m_numberBeforeType; ///< of the card whose type is being typed
};

} // namespace deckforge
