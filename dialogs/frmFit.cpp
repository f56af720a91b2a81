// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/frmFit.h"

#include "dialogs/FitView.h"
#include "imaging/Picture.h"
#include "ui_frmFit.h"

#include <QSignalBlocker>
#include <cmath>

namespace deckforge {

namespace {

class FitDialog final : public QDialog {
public:
    FitDialog(const QImage& photo, QSize frame, const Crop& start, QWidget* window)
        : QDialog(window), m_frame(frame)
    {
        m_form.setupUi(this);
        m_view = new FitView(photo, start);
        m_form.fitLayout->insertWidget(0, m_view);
        connect(m_view, &FitView::Changed, this, [this] { Refresh(); });
        connect(m_form.hsbZoom, &QSlider::valueChanged, this, [this](int value) {
            m_view->SetZoom(std::pow(Crop::MaxZoom, static_cast<double>(value) / m_form.hsbZoom->maximum()));
        });
        connect(m_form.buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(m_form.buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        Refresh();
        m_view->setFocus();
    }

    [[nodiscard]] QRectF Part() const { return m_view->Chosen().Part(); }

private:
    void Refresh()
    {
        const QSignalBlocker quiet(m_form.hsbZoom);
        const double share = std::log(m_view->Chosen().Zoom()) / std::log(Crop::MaxZoom);
        m_form.hsbZoom->setValue(static_cast<int>(std::lround(share * m_form.hsbZoom->maximum())));
        m_form.lblQuality->setText(PrintQualityText(Part(), m_frame));
    }

    Ui::frmFit m_form;
    FitView* m_view;
    QSize m_frame;
};

} // namespace

std::optional<QRectF> ChoosePart(const QImage& photo, QSize frame, const Crop& start, QWidget* window)
{
    FitDialog dialog(photo, frame, start, window);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Part();
}

QString PrintQualityText(const QRectF& part, QSize frame)
{
    constexpr int coarse = 150;
    const int dots = static_cast<int>(part.width() / frame.width() * LogicalPixelsPerInch);
    return QStringLiteral("Prints at %1 dots per inch%2")
        .arg(dots)
        .arg(dots < coarse ? QStringLiteral(": coarse. Zoom out, or take a larger photo.") : QString());
}

} // namespace deckforge
