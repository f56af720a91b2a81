#include "dialogs/frmCardList.h"

#include "dialogs/RowDelegate.h"
#include "ui_frmCardList.h"

#include <QAbstractTableModel>
#include <QKeyEvent>
#include <QSortFilterProxyModel>

namespace deckforge {

namespace {

class CardListModel final : public QAbstractTableModel {
public:
    CardListModel(const CardSet& set, CardListMode mode) : m_set(set), m_mode(mode) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : CardListCount(m_set, m_mode);
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
        return CardListText(m_set, m_mode, static_cast<int16>(cell.row() + 1),
                            static_cast<CardListColumn>(cell.column()));
    }

private:
    const CardSet& m_set;
    CardListMode m_mode;
};

/// Rows go in the order of the set until a header is clicked; that sorts what is seen, never the set.
class CardListDialog final : public QDialog {
public:
    CardListDialog(const CardSet& set, CardListMode mode, QWidget* window)
        : QDialog(window), m_model(set, mode)
    {
        m_form.setupUi(this);
        m_sorted.setSourceModel(&m_model);
        m_sorted.setSortCaseSensitivity(Qt::CaseInsensitive);
        QTreeView& list = *m_form.lvCard;
        list.setModel(&m_sorted);
        list.setItemDelegate(new RowDelegate(this));
        list.header()->setStretchLastSection(false);
        list.header()->setSortIndicator(-1, Qt::AscendingOrder);
        list.header()->setSortIndicatorClearable(true); // the third click brings the set's order back
        list.setSortingEnabled(true);
        list.installEventFilter(this);
        connect(&list, &QTreeView::doubleClicked, this, [this](const QModelIndex& cell) { Pick(cell); });
        // Letters look for a title, wherever in its row the last click was.
        connect(list.selectionModel(), &QItemSelectionModel::currentChanged, this,
                [&list](const QModelIndex& cell) {
                    if (cell.column() > 0)
                        list.selectionModel()->setCurrentIndex(cell.siblingAtColumn(0),
                                                               QItemSelectionModel::NoUpdate);
                });
        connect(m_form.cmdClose, &QPushButton::clicked, this, &QDialog::accept);
        StartAt(mode == CardListMode::Cards ? set.CurrentCard : set.CurrentCharacter);
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

    /// In sevenths of the list: two each, and one for the last.
    void SizeColumns()
    {
        constexpr int gap = 10;
        QHeaderView& header = *m_form.lvCard->header();
        const int seventh = m_form.lvCard->width() / 7;
        for (int column = 0; column < CardListColumnCount; ++column)
            header.resizeSection(column, (column < CardListColumnCount - 1 ? 2 * seventh : seventh) - gap);
    }

    void Pick(const QModelIndex& cell)
    {
        m_chosen = static_cast<int16>(m_sorted.mapToSource(cell).row() + 1);
        accept();
    }

    Ui::frmCardList m_form;
    CardListModel m_model;
    QSortFilterProxyModel m_sorted;
    std::optional<int16> m_chosen;
};

} // namespace

std::optional<int16> ChooseFromCardList(const CardSet& set, CardListMode mode, QWidget* window)
{
    CardListDialog dialog(set, mode, window);
    dialog.exec();
    return dialog.Chosen();
}

} // namespace deckforge
