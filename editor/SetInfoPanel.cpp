// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/SetInfoPanel.h"

#include "compose/SetView.h"
#include "core/Vocabulary.h"

#include <QGroupBox>

namespace deckforge {

SetInfoPanel::SetInfoPanel(EditorParts& parts, QWidget* parent) : RecordForm(parts, new QGroupBox(parent))
{
    m_form.setupUi(static_cast<QGroupBox*>(m_widget));
    FillList(*m_form.cboSaveFormat, SaveFormats());
    AddText(m_form.txtSetname, &SetHeader::SetName, {.Changed = [this] { NameChanged(); }});
    AddText(m_form.txtFilenamePrefix, &SetHeader::FilenamePrefix);
    AddCheck(m_form.chkAutonumber, &SetHeader::Autonumber,
             [this] { ShowNumbers(m_parts.Works.Templates, m_parts.Works.Set); });
    AddCheck(m_form.chkFileNr, &SetHeader::FileNr);
    AddCheck(m_form.chkNoBack, &SetHeader::NoBack, [this] { NoBackClicked(); });
    AddCheck(m_form.chkReplaceSpace, &SetHeader::ReplaceSpace);
    AddPicture({m_form.cmdSymbol, m_form.cmdDelSymbol, m_form.txtSymbol}, &SetHeader::Symbol,
               {.Show = [this](const Picture& symbol) { ShowSymbol(symbol); }});
    On(m_form.cmdSaveTo, &QAbstractButton::clicked, [this] { ChooseSaveTo(); });
    On(m_form.cboSaveFormat, &QComboBox::activated,
       [this](int row) { Edit(m_form.cboSaveFormat, &SetHeader::SaveFormat, static_cast<int16>(row)); });
}

void SetInfoPanel::Fill()
{
    FillFields();
    const SetHeader& header = Current();
    ShowText(*m_form.txtSaveTo, header.SaveTo, header.SaveTo);
    m_form.cboSaveFormat->setCurrentIndex(header.SaveFormat);
}

void SetInfoPanel::NameChanged()
{
    QString name = Current().SetName;
    name.replace(QLatin1String("[*]"),
                 QLatin1String("[*][*]")); // Qt would replace "[*]" by its modified mark
    m_widget->window()->setWindowTitle(name + QStringLiteral(" - Varnhelm Deck Forge"));
}

void SetInfoPanel::NoBackClicked()
{
    CardTemplate& t = m_parts.Works.Templates.Standard;
    t.picBack.Visible = t.picCard.Visible && !Current().NoBack; // other tabs do not show the back
}

void SetInfoPanel::ShowSymbol(const Picture& symbol)
{
    if (symbol.IsEmpty())
        HideSymbol(m_parts.Works.Templates);
    else
        ShowChosenSymbol(m_parts.Works.Templates, symbol);
}

/// Kept: cancelling the dialog clears the folder.
void SetInfoPanel::ChooseSaveTo()
{
    const QString folder = m_parts.User.BrowseForFolder().value_or(QString());
    Edit(m_form.txtSaveTo, &SetHeader::SaveTo, folder);
    ShowText(*m_form.txtSaveTo, folder, folder);
}

} // namespace deckforge
