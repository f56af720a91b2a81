// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/frmCardSheet.h"

#include "ui_frmCardSheet.h"

#include <QButtonGroup>
#include <QPainter>
#include <QRadioButton>

namespace deckforge {

namespace {

constexpr QSize SmallCard = {16, 27}; ///< of a card in the picture of the grid, roughly to scale
constexpr int Step = 3;               ///< between cards
constexpr QRgb Paper = qRgb(247, 241, 222);
constexpr QRgb Ink = qRgb(90, 74, 51);
constexpr QRgb Sky = qRgb(106, 160, 216);

QRect CellPlace(int col, int row)
{
    return {QPoint(col * (SmallCard.width() + Step), row * (SmallCard.height() + Step)), SmallCard};
}

/// One small card per cell. The picture has the size of the largest sheet, so that the layout does not move.
QPixmap GridPicture(SheetGrid grid, double ratio)
{
    const QRect last = CellPlace(SheetGrid::MaxCols - 1, SheetGrid::MaxRows - 1);
    QPixmap picture((QSizeF(last.right() + 1, last.bottom() + 1) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    for (int row = 0; row < grid.Rows; ++row) {
        for (int col = 0; col < grid.Cols; ++col) {
            const QRect place = CellPlace(col, row);
            painter.fillRect(place, QColor(Ink));
            painter.fillRect(place.adjusted(1, 1, -1, -1), QColor(Paper));
            painter.fillRect(place.adjusted(3, 6, -3, -12), QColor(Sky));
        }
    }
    return picture;
}

/// Adds option buttons 1 to `count` to a frame, named after their numbers; checks the preset.
QButtonGroup* AddOptions(QGroupBox* frame, const char* name, int count, int preset)
{
    auto* const group = new QButtonGroup(frame);
    for (int i = 1; i <= count; ++i) {
        auto* const option = new QRadioButton(QString::number(i), frame);
        option->setObjectName(QLatin1String(name) + QString::number(i));
        option->setChecked(i == preset);
        // Tab stops at the checked button only. QButtonGroup would do so only after it has had the focus.
        option->setFocusPolicy(i == preset ? Qt::StrongFocus : Qt::ClickFocus);
        frame->layout()->addWidget(option);
        group->addButton(option, i);
    }
    return group;
}

/// The result is read from the checked buttons, whose texts are the numbers.
class SheetDialog final : public QDialog {
public:
    SheetDialog(bool noBack, QWidget* window) : QDialog(window), m_noBack(noBack)
    {
        m_form.setupUi(this);
        optCol = AddOptions(m_form.fraCols, "optCol", SheetGrid::MaxCols, SheetGrid().Cols);
        optRow = AddOptions(m_form.fraRows, "optRow", SheetGrid::MaxRows, SheetGrid().Rows);
        for (QButtonGroup* options : {optCol, optRow})
            connect(options, &QButtonGroup::idClicked, this, [this] { Refresh(); });
        connect(m_form.cmdOK, &QPushButton::clicked, this, &QDialog::accept);
        connect(m_form.cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
        Refresh();
        layout()->setSizeConstraint(QLayout::SetFixedSize);
        optCol->checkedButton()->setFocus();
    }

    [[nodiscard]] SheetGrid Grid() const
    {
        return {static_cast<int16>(optCol->checkedId()), static_cast<int16>(optRow->checkedId())};
    }

private:
    void Refresh()
    {
        m_form.imgSheet->setPixmap(GridPicture(Grid(), devicePixelRatioF()));
        m_form.lblSize->setText(SheetSizeText(Grid(), m_noBack));
    }

    bool m_noBack;
    Ui::frmCardSheet m_form;
    QButtonGroup* optCol;
    QButtonGroup* optRow;
};

} // namespace

std::optional<SheetGrid> AskSheetGrid(bool noBack, QWidget* window)
{
    SheetDialog dialog(noBack, window);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Grid();
}

QString SheetSizeText(SheetGrid grid, bool noBack)
{
    constexpr int widthWithBack = 254; // Kept: less than the sheet's real width.
    return QStringLiteral("%1 x %2")
        .arg(grid.Rows * CardSize.height())
        .arg(grid.Cols * (noBack ? CardSize.width() : widthWithBack));
}

} // namespace deckforge
