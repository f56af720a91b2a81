// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/frmFont.h"

#include "dialogs/WheelGuard.h"
#include "imaging/PictureBox.h"
#include "imaging/TextFont.h"
#include "ui_frmFont.h"

#include <QFontDatabase>
#include <QPainter>

namespace deckforge {

namespace {

constexpr int SampleZoom = 2; ///< the default zoom of the window's preview
constexpr QSize SampleSize = {190, 42};

/// The chosen name, the names of new cards, and the installed families.
QStringList FontNames(const QString& chosen)
{
    QStringList names = {QStringLiteral("Small Fonts"), QStringLiteral("Arial")};
    if (!chosen.isEmpty())
        names.prepend(chosen);
    names += QFontDatabase::families();
    names.removeDuplicates();
    return names;
}

/// On white and on black, so that every colour is visible.
QPixmap SamplePicture(const FontSpec& font, double ratio)
{
    const QSize size = SampleSize * SampleZoom;
    QPixmap picture((QSizeF(size) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    painter.scale(SampleZoom, SampleZoom);
    painter.setFont(DrawnFont(DrawableFont(font)));
    painter.setPen(QColor(ToRgb(font.Color)));
    const int half = SampleSize.width() / 2;
    for (const bool isDark : {false, true}) {
        const QRect place(isDark ? half : 0, 0, half, SampleSize.height());
        painter.setClipRect(place);
        painter.fillRect(place, isDark ? Qt::black : Qt::white);
        painter.drawText(place, Qt::AlignCenter, QStringLiteral("STRENGTH 5"));
    }
    return picture;
}

class FontDialog final : public QDialog {
public:
    FontDialog(const QString& title, const FontSpec& font, UserPort& user, QWidget* window)
        : QDialog(window), m_user(user), m_font(font)
    {
        setWindowTitle(title);
        m_form.setupUi(this);
        m_form.cboFont->addItems(FontNames(font.Name));
        m_form.cboFont->setCurrentText(font.Name);
        m_form.udSize->setValue(font.Size);
        m_form.chkBold->setChecked(font.Bold);
        m_form.chkItalic->setChecked(font.Italic);
        connect(m_form.cboFont, &QComboBox::currentTextChanged, this, [this] { Refresh(); });
        connect(m_form.udSize, &QDoubleSpinBox::valueChanged, this, [this](double size) {
            m_font.Size = size; // until the user changes it, a size that the box cannot show is kept
            Refresh();
        });
        connect(m_form.chkBold, &QCheckBox::toggled, this, [this] { Refresh(); });
        connect(m_form.chkItalic, &QCheckBox::toggled, this, [this] { Refresh(); });
        connect(m_form.picColor, &ColourSwatch::clicked, this, [this] { PickColour(); });
        connect(m_form.buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(m_form.buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        GuardFromWheel(*this);
        Refresh();
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    }

    [[nodiscard]] FontSpec Font() const
    {
        return {.Name = m_form.cboFont->currentText(),
                .Size = m_font.Size,
                .Bold = m_form.chkBold->isChecked(),
                .Italic = m_form.chkItalic->isChecked(),
                .Color = m_font.Color};
    }

private:
    void PickColour()
    {
        const auto picked = m_user.AskColour(QStringLiteral("Choose font colour"), m_font.Color);
        m_font.Color = picked.value_or(m_font.Color);
        Refresh();
    }

    void Refresh()
    {
        m_form.picColor->SetColour(QColor(ToRgb(m_font.Color)));
        m_form.imgSample->setPixmap(SamplePicture(Font(), devicePixelRatioF()));
    }

    Ui::frmFont m_form;
    UserPort& m_user;
    FontSpec m_font; ///< size and colour chosen so far
};

} // namespace

std::optional<FontSpec> ChooseFontInDialog(const QString& title, const FontSpec& font, UserPort& user,
                                           QWidget* window)
{
    FontDialog dialog(title, font, user, window);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Font();
}

} // namespace deckforge
