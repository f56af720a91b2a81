// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/frmAbout.h"

#include "platform/Version.h"
#include "ui_frmAbout.h"

#include <QDesktopServices>
#include <QIcon>
#include <QUrl>

namespace deckforge {

namespace {

QPixmap AboutPicture(double ratio)
{
    constexpr QSize size = {320, 160};
    return QIcon(QStringLiteral(":/deckforge/about.svg")).pixmap(size, ratio);
}

class AboutDialog final : public QDialog {
public:
    explicit AboutDialog(QWidget* window) : QDialog(window)
    {
        m_form.setupUi(this);
        m_form.Picture1->setPixmap(AboutPicture(devicePixelRatioF()));
        m_form.lblURL->setText(QStringLiteral("<a href=\"%1\">%1</a>").arg(QLatin1String(WebAddress)));
        m_form.lblURL->setAccessibleName(QString::fromLatin1(WebAddress)); // without the markup
        m_form.lblVersion->setText(QStringLiteral("Version: %1.%2 (Build %3)")
                                       .arg(VersionMajor)
                                       .arg(VersionMinor)
                                       .arg(VersionRevision));
        m_form.lblContact->setText(QStringLiteral("contact@") + QUrl(QLatin1String(WebAddress)).host());
        // Nothing to report if there is no browser.
        connect(m_form.lblURL, &QLabel::linkActivated, this,
                [](const QString& link) { QDesktopServices::openUrl(QUrl(link)); });
        connect(m_form.cmdClose, &QPushButton::clicked, this, &QDialog::accept);
        layout()->setSizeConstraint(QLayout::SetFixedSize);
        m_form.cmdClose->setFocus(); // so that Enter closes and does not open the link
    }

private:
    Ui::frmAbout m_form;
};

} // namespace

void ShowAbout(QWidget* window)
{
    AboutDialog dialog(window);
    dialog.exec();
}

} // namespace deckforge
