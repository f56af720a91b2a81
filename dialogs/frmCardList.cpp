// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/frmCardList.h"

#include "dialogs/RowDelegate.h"
#include "ui_frmCardList.h"

#include <QAbstractTableModel>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSortFilterProxyModel>
#include <array>

namespace deckforge {

namespace {

class CardListModel final : public QAbstractTableModel {
public:
    CardListModel(const CardSet& set, CardKind kind) : m_set(set), m_kind(kind) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : CardListCount(m_set, m_kind);
    }

    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : CardListColumnCount;
    }

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        static constexpr const char* titles[] = {"Card", "Type", "Back", "Picture"};
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return {};
        return QString::fromLatin1(titles[section]);
    }

    [[nodiscard]] QVariant data(const QModelIndex& cell, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        return CardListText(m_set, m_kind, static_cast<int16>(cell.row() + 1),
                            static_cast<CardListColumn>(cell.column()));
    }

private:
    const CardSet& m_set;
    CardKind m_kind;
};

/// Rows are in the order of the set until a header is clicked. Sorting never changes the set.
class CardListDialog final : public QDialog {
public:
    CardListDialog(const CardSet& set, CardKind kind, QWidget* window) : QDialog(window), m_model(set, kind)
    {
        m_form.setupUi(this);
        m_sorted.setSourceModel(&m_model);
        m_sorted.setSortCaseSensitivity(Qt::CaseInsensitive);
        QTreeView& list = *m_form.lvCard;
        list.setModel(&m_sorted);
        list.setItemDelegate(new RowDelegate(this));
        list.header()->setStretchLastSection(false);
        list.header()->setSortIndicator(-1, Qt::AscendingOrder);
        list.header()->setSortIndicatorClearable(true); // the third click restores the order of the set
        list.setSortingEnabled(true);
        list.installEventFilter(this);
        connect(list.header(), &QHeaderView::sectionResized, this,
                [this](int column, int /*before*/, int width) { TakeShare(column, width); });
        connect(&list, &QTreeView::doubleClicked, this, [this](const QModelIndex& cell) { Pick(cell); });
        // Typing searches the titles, whatever column was clicked last.
        connect(list.selectionModel(), &QItemSelectionModel::currentChanged, this,
                [&list](const QModelIndex& cell) {
                    if (cell.column() > 0)
                        list.selectionModel()->setCurrentIndex(cell.siblingAtColumn(0),
                                                               QItemSelectionModel::NoUpdate);
                });
        connect(m_form.cmdClose, &QPushButton::clicked, this, &QDialog::accept);
        StartAt(kind == CardKind::Standard ? set.Cards.Current : set.Characters.Current);
    }

    [[nodiscard]] std::optional<int16> Chosen() const { return m_chosen; }

    [[nodiscard]] QSize sizeHint() const override
    {
        const int letter = fontMetrics().averageCharWidth();
        return QDialog::sizeHint().expandedTo({112 * letter, 72 * letter});
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            SizeColumns();
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if ((key == Qt::Key_Return || key == Qt::Key_Enter) && m_form.lvCard->currentIndex().isValid()) {
                Pick(m_form.lvCard->currentIndex());
                return true;
            }
        }
        return QDialog::eventFilter(watched, event);
    }

private:
    void StartAt(int16 index)
    {
        const QModelIndex row = m_sorted.mapFromSource(m_model.index(index - 1, 0));
        m_form.lvCard->setCurrentIndex(row);
    }

    void SizeColumns()
    {
        const QScopedValueRollback sizing(m_isSizing, true);
        for (std::size_t column = 0; column < m_shares.size(); ++column) {
            const int width = static_cast<int>(m_shares[column] * m_form.lvCard->width()) - Gap;
            m_form.lvCard->header()->resizeSection(static_cast<int>(column), width);
        }
    }

    /// A column that the user resized keeps its share of the list's width.
    void TakeShare(int column, int width)
    {
        if (m_isSizing)
            return;
        m_shares.at(static_cast<std::size_t>(column)) =
            static_cast<double>(width + Gap) / m_form.lvCard->width();
    }

    void Pick(const QModelIndex& cell)
    {
        m_chosen = static_cast<int16>(m_sorted.mapToSource(cell).row() + 1);
        accept();
    }

    static constexpr int Gap = 10; ///< width left free in each column

    Ui::frmCardList m_form;
    CardListModel m_model;
    QSortFilterProxyModel m_sorted;
    std::optional<int16> m_chosen;
    std::array<double, CardListColumnCount> m_shares = {2 / 7.0, 2 / 7.0, 2 / 7.0,
                                                        1 / 7.0}; ///< of the list's width
    bool m_isSizing = false;
};

} // namespace

std::optional<int16> ChooseFromCardList(const CardSet& set, CardKind kind, QWidget* window)
{
    CardListDialog dialog(set, kind, window);
    dialog.exec();
    return dialog.Chosen();
}

} // namespace deckforge
