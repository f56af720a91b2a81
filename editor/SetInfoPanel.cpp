#include "editor/SetInfoPanel.h"

#include "compose/SetView.h"
#include "core/Vocabulary.h"
#include "editor/Lists.h"

#include <QGroupBox>

namespace deckforge {

SetInfoPanel::SetInfoPanel(EditorParts& parts, QWidget* parent) : RecordForm(parts, new QGroupBox(parent))
{
    m_form.setupUi(static_cast<QGroupBox*>(m_widget));
    FillList(*m_form.cboSaveFormat, SaveFormats());
    Bind(MakeRows());
    On(m_form.cmdSymbol, &QAbstractButton::clicked, [this] {
        if (const auto path = AskPicture("Choose picture", m_form.cmdSymbol))
            TakeSymbol(*path);
    });
    On(m_form.cmdDelSymbol, &QAbstractButton::clicked, [this] { ClearSymbol(); });
    On(m_form.cmdSaveTo, &QAbstractButton::clicked, [this] { ChooseSaveTo(); });
    On(m_form.cboSaveFormat, &QComboBox::activated, [this] { FormatChosen(); });
}

FieldRows<SetHeader> SetInfoPanel::MakeRows()
{
    return {
        .Texts = {{.Control = m_form.txtSetname,
                   .Field = &SetHeader::SetName,
                   .Changed = [this] { NameChanged(); }},
                  {.Control = m_form.txtFilenamePrefix, .Field = &SetHeader::FilenamePrefix}},
        .Checks = {{.Control = m_form.chkAutonumber,
                    .Field = &SetHeader::Autonumber,
                    .Changed = [this] { ShowNumbers(m_parts.Works); }},
                   {.Control = m_form.chkFileNr, .Field = &SetHeader::FileNr},
                   {.Control = m_form.chkNoBack,
                    .Field = &SetHeader::NoBack,
                    .Changed = [this] { NoBackClicked(); }},
                   {.Control = m_form.chkReplaceSpace, .Field = &SetHeader::ReplaceSpace}},
    };
}

void SetInfoPanel::Fill()
{
    FillFields();
    const SetHeader& header = Current();
    ShowPath(*m_form.txtSymbol, header.Symbol);
    ShowText(*m_form.txtSaveTo, header.SaveTo, header.SaveTo);
    m_form.cboSaveFormat->setCurrentIndex(header.SaveFormat);
}

void SetInfoPanel::NameChanged()
{
    QString name = Current().SetName;
    name.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); // a mark of Qt's that would not be shown
    m_widget->window()->setWindowTitle(name + QStringLiteral(" - Varnhelm Deck Forge"));
}

void SetInfoPanel::NoBackClicked()
{
    CardTemplate& t = m_parts.Works.Templates.Standard;
    t.picBack.Visible = t.picCard.Visible && !Current().NoBack; // not beside the other kinds
}

void SetInfoPanel::TakeSymbol(const QString& path)
{
    m_parts.Document.Edit<SetHeader>(m_form.txtSymbol->accessibleName(), &SetHeader::Symbol, path);
    RememberFolder(m_form.cmdSymbol, path);
    const auto symbol = LoadedPicture(m_parts, path);
    if (!symbol)
        return;
    ShowChosenSymbol(m_parts.Works.Templates, *symbol);
    ShowPath(*m_form.txtSymbol, path);
    m_parts.Preview.update();
}

void SetInfoPanel::ClearSymbol()
{
    m_parts.Document.Edit<SetHeader>(m_form.txtSymbol->accessibleName(), &SetHeader::Symbol, QString());
    m_form.txtSymbol->clear();
    HideSymbol(m_parts.Works.Templates);
    m_parts.Preview.update();
}

/// Kept: a cancel empties the folder, too.
void SetInfoPanel::ChooseSaveTo()
{
    const QString folder = m_parts.User.BrowseForFolder().value_or(QString());
    m_parts.Document.Edit<SetHeader>(m_form.txtSaveTo->accessibleName(), &SetHeader::SaveTo, folder);
    ShowText(*m_form.txtSaveTo, folder, folder);
}

void SetInfoPanel::FormatChosen()
{
    m_parts.Document.Edit<SetHeader>(m_form.cboSaveFormat->accessibleName(), &SetHeader::SaveFormat,
                                     static_cast<int16>(m_form.cboSaveFormat->currentIndex()));
}

} // namespace deckforge
