// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "editor/RecordForm.h"
#include "ui_fraSet.h"

namespace deckforge {

/// The settings of the set, beside the tabs.
class SetInfoPanel final : public RecordForm<SetHeader> {
public:
    SetInfoPanel(EditorParts& parts, QWidget* parent);

    [[nodiscard]] QWidget* Form() const { return m_widget; }
    [[nodiscard]] QWidget* NameLabel() const { return m_form.lblSetName; }
    [[nodiscard]] std::vector<QWidget*> BoxesToReplace() const
    {
        return {m_form.txtSetname, m_form.txtFilenamePrefix};
    }

    /// Updates the controls with the set.
    void Fill();

private:
    void NameChanged();
    void NoBackClicked();
    void ShowSymbol(const Picture& symbol);
    void ChooseSaveTo();

    Ui::fraSet m_form;
};

} // namespace deckforge
