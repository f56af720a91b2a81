#pragma once

#include "editor/RecordForm.h"
#include "ui_fraSet.h"

namespace deckforge {

/// The settings that hold for the whole set, beside the tabs.
class SetInfoPanel final : public RecordForm<SetHeader> {
public:
    SetInfoPanel(EditorParts& parts, QWidget* parent);

    [[nodiscard]] QWidget* Form() const { return m_widget; }
    [[nodiscard]] QWidget* NameLabel() const { return m_form.lblSetName; }
    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const
    {
        return {m_form.txtSetname, m_form.txtFilenamePrefix};
    }

    /// Brings the controls up to date with the set.
    void Fill();

private:
    [[nodiscard]] FieldRows<SetHeader> MakeRows();
    void NameChanged();
    void NoBackClicked();
    void TakeSymbol(const QString& path);
    void ClearSymbol();
    void ChooseSaveTo();
    void FormatChosen();

    Ui::fraSet m_form;
};

} // namespace deckforge
