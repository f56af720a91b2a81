// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/frmPicPath.h"

#include "core/PicturePaths.h"
#include "dialogs/Handlers.h"
#include "dialogs/RowDelegate.h"
#include "ui_frmPicPath.h"

#include <QAbstractTableModel>
#include <QButtonGroup>

namespace deckforge {

namespace {

/// The pictures of one field, each with a check box.
class PathModel final : public QAbstractTableModel {
public:
    PathModel(CardSet& set, QObject* parent) : QAbstractTableModel(parent), m_set(set) {}

    /// Shows the current paths of the field, all unchecked.
    void Show(const PathField& field)
    {
        beginResetModel();
        m_field = &field;
        m_rows = field.Rows(m_set);
        m_isChecked.assign(m_rows.size(), false);
        endResetModel();
    }

    void CheckAll()
    {
        m_isChecked.assign(m_rows.size(), true);
        if (!m_rows.empty())
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
    }

    [[nodiscard]] std::vector<int16> CheckedRows() const
    {
        std::vector<int16> checked;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            if (m_isChecked[i])
                checked.push_back(m_rows[i]);
        }
        return checked;
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : 2;
    }

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return {};
        return section == CardColumn ? QStringLiteral("Card") : QStringLiteral("Picture");
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& cell) const override
    {
        const Qt::ItemFlags flags = QAbstractTableModel::flags(cell);
        return cell.column() == CardColumn ? flags | Qt::ItemIsUserCheckable : flags;
    }

    [[nodiscard]] QVariant data(const QModelIndex& cell, int role) const override
    {
        const auto row = static_cast<std::size_t>(cell.row());
        const bool isCard = cell.column() == CardColumn;
        if (role == Qt::CheckStateRole && isCard)
            return m_isChecked[row] ? Qt::Checked : Qt::Unchecked;
        if (role == Qt::DisplayRole && isCard)
            return m_field->Title(m_set, m_rows[row]);
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
            return m_field->Path(m_set, m_rows[row]);
        return {};
    }

    bool setData(const QModelIndex& cell, const QVariant& value, int role) override
    {
        if (role != Qt::CheckStateRole)
            return false;
        m_isChecked[static_cast<std::size_t>(cell.row())] = value.toInt() == Qt::Checked;
        Q_EMIT dataChanged(cell, cell, {role});
        return true;
    }

private:
    enum Column { CardColumn, PictureColumn };

    CardSet& m_set;
    const PathField* m_field = &PathFields().front();
    std::vector<int16> m_rows;
    std::vector<bool> m_isChecked; ///< of each row
};

class PathDialog final : public QDialog {
public:
    PathDialog(CardSet& set, UserPort& user, QWidget* window)
        : QDialog(window), m_set(set), m_user(user), m_options(this), m_model(set, this)
    {
        m_form.setupUi(this);
        QRadioButton* const options[] = {m_form.optCard0, m_form.optCard1, m_form.optCard2, m_form.optCard3,
                                         m_form.optCard4, m_form.optCard5, m_form.optCard6};
        for (QRadioButton* option : options) {
            m_options.addButton(option, static_cast<int>(m_options.buttons().size()));
            option->setFocusPolicy(option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
        }
        m_form.lviewPath->setModel(&m_model);
        m_form.lviewPath->setItemDelegate(new RowDelegate(this));
        FillLV();
        SizeColumns();
        OnSignal(user, &m_options, &QButtonGroup::idClicked, this, [this] { FillLV(); });
        OnClick(user, m_form.cmdBrowse, this, [this] { Browse(); });
        OnClick(user, m_form.cmdSelectAll, this, [this] { m_model.CheckAll(); });
        OnClick(user, m_form.cmdChange, this, [this] { Change(); });
        // Once a folder is entered, Enter applies it instead of closing the dialog.
        OnSignal(user, m_form.txtNewPath, &QLineEdit::textChanged, this,
                 [this] { m_form.cmdChange->setDefault(true); });
        connect(m_form.cmdDone, &QPushButton::clicked, this, &QDialog::accept);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const int letter = fontMetrics().averageCharWidth();
        return QDialog::sizeHint().expandedTo({112 * letter, 64 * letter});
    }

private:
    [[nodiscard]] const PathField& Field() const
    {
        return PathFields().at(static_cast<std::size_t>(m_options.checkedId()));
    }

    void FillLV() { m_model.Show(Field()); }

    void SizeColumns()
    {
        QHeaderView& header = *m_form.lviewPath->header();
        header.resizeSection(0, 28 * fontMetrics().averageCharWidth());
        header.setStretchLastSection(true);
    }

    void Browse()
    {
        if (const auto folder = m_user.BrowseForFolder())
            m_form.txtNewPath->setText(*folder);
    }

    void Change()
    {
        const QString folder = m_form.txtNewPath->text();
        if (folder.isEmpty())
            return;
        const HourglassScope hourglass(m_user);
        ChangeFolder(m_set, Field(), m_model.CheckedRows(), folder);
        FillLV();
        m_form.cmdDone->setDefault(true);
    }

    CardSet& m_set;
    UserPort& m_user;
    Ui::frmPicPath m_form;
    QButtonGroup m_options;
    PathModel m_model;
};

} // namespace

void EditPicturePaths(CardSet& set, UserPort& user, QWidget* window)
{
    PathDialog dialog(set, user, window);
    dialog.exec();
}

} // namespace deckforge
