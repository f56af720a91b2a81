// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStyledItemDelegate>

namespace deckforge {

/// Adds vertical space to the rows of a list, and outlines check boxes so that they are visible in every
/// palette.
class RowDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& cell) const override
    {
        const int room = option.fontMetrics.height() / 3;
        return QStyledItemDelegate::sizeHint(option, cell) + QSize(0, room);
    }

protected:
    /// The check box's outline is derived from the window colour, which is invisible on a dark list.
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
