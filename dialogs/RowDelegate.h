#pragma once

#include <QStyledItemDelegate>

namespace deckforge {

/// Gives the rows of a list room above and below their text.
class RowDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& cell) const override
    {
        const int room = option.fontMetrics.height() / 3;
        return QStyledItemDelegate::sizeHint(option, cell) + QSize(0, room);
    }
};

} // namespace deckforge
