#pragma once

#include <QStyledItemDelegate>

namespace deckforge {

/// Gives the rows of a list room above and below their text, and draws boxes to check so that they are seen
/// in every palette.
class RowDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& cell) const override
    {
        const int room = option.fontMetrics.height() / 3;
        return QStyledItemDelegate::sizeHint(option, cell) + QSize(0, room);
    }

protected:
    /// The outline of a box comes from the colour of the window, and would be lost on a dark list.
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& cell) const override
    {
        QStyledItemDelegate::initStyleOption(option, cell);
        if (!(option->features & QStyleOptionViewItem::HasCheckIndicator))
            return;
        const QColor base = option->palette.color(QPalette::Base);
        const QColor text = option->palette.color(QPalette::Text);
        option->palette.setColor(QPalette::Window,
                                 QColor((base.red() + text.red()) / 2, (base.green() + text.green()) / 2,
                                        (base.blue() + text.blue()) / 2));
    }
};

} // namespace deckforge
