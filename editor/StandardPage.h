#pragma once

#include "editor/RecordPage.h"
#include "ui_fraCard.h"

namespace deckforge {

/// The tab of the standard cards.
class StandardPage final : public RecordPage<Card> {
public:
    StandardPage(EditorParts& parts, QWidget* parent);

    void SetShown(bool isShown) override;
    void TakeSet() override;
    void Show(int16 index) override;
    void ShowFrameSize() override;
    bool TakeDrop(const Box& box, const QString& path) override;
    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const override;

    /// Fills the lists of types and backs.
    void FillLists();
    /// Draws the artist's credit, which depends on the background and the colour of the card as well.
    void ShowArtist();
    void StartTyping();

private:
    void AddFields();
    void FillOthers() override;
    [[nodiscard]] QString DraggedText(const Card& card) const override;
    void FillBackList();
    void CompleteBoldText();
    void ResizeClicked();
    void TypeChosen();
    void TypeTyped();
    void ShowType();
    void BackChosen();
    void AddUserBack(const QString& path);

    CardTemplate& m_boxes;
    Ui::fraCard m_form;
    std::optional<QString> m_numberBeforeType; ///< of the card whose type is being typed
};

} // namespace deckforge
