// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/FocusSelection.h"
#include "editor/Page.h"
#include "editor/PreviewController.h"
#include "editor/SetInfoPanel.h"
#include "editor/TextControl.h"
#include "editor/frmQDW.h"
#include "platform/Twips.h"
#include "platform/Version.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollArea>
#include <QStackedWidget>
#include <algorithm>

namespace deckforge {

namespace {

constexpr char HelpText[] = "This is a very small help.\r\n"
                            "\r\n"
                            "Shortcuts\r\n"
                            "  Ctrl-S - Save card set\r\n"
                            "  Ctrl-O - Open card set\r\n"
                            "  Ctrl-N - New card\r\n"
                            "  Ctrl-, - Previous card\r\n"
                            "  Ctrl-. - Next card\r\n"
                            "\r\n"
                            "Click on a picture and nudge it with arrow keys.\r\n"
                            "Change frame size with shift+arrow keys.";

} // namespace

/// F1 works with any modifier, which a QShortcut does not.
void frmQDW::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1)
        Guarded(m_parts.User, [this] { ShowHelp(); });
    else
        QMainWindow::keyPressEvent(event);
}

void frmQDW::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && IsBackground(event->position().toPoint()))
        Guarded(m_parts.User, [this] { ShowVersion(); });
    else
        QMainWindow::mouseDoubleClickEvent(event);
}

void frmQDW::ShowHelp()
{
    ShowBox(m_parts.User, BoxStyle::Information, "Help", QString::fromLatin1(HelpText));
}

void frmQDW::ShowVersion()
{
    const QString version = QStringLiteral("Version %1.%2.%3");
    ShowBox(m_parts.User, BoxStyle::Information, "Hello!",
            version.arg(VersionMajor).arg(VersionMinor).arg(VersionRevision));
}

/// Shows size of the window and position of the card, in twips and pixels.
void frmQDW::ShowOffsets()
{
    const QSize window = frameGeometry().size();
    const Box& picCard = m_works.Templates.Standard.picCard;
    const QString text = QStringLiteral("Form height (Twip):%1, Form width (Twip):%2\r\n"
                                        "Form height:%3, Form width:%4\r\n"
                                        "Offset top:%5, Offset left:%6");
    ShowBox(m_parts.User, BoxStyle::Plain, "Offset info",
            text.arg(window.height() * TwipsPerPixelY)
                .arg(window.width() * TwipsPerPixelX)
                .arg(window.height())
                .arg(window.width())
                .arg(picCard.Top)
                .arg(picCard.Left));
}

/// Labels, bars and the card ignore clicks, which then reach the window; they are not background.
bool frmQDW::IsBackground(QPoint point) const
{
    const QWidget* const under = childAt(point);
    if (under == m_preview)
        return m_preview->BoxAt(m_preview->mapFrom(this, point)) == nullptr;
    const bool isForm =
        std::any_of(m_pages.begin(), m_pages.end(), [&](const auto& page) { return under == page->Form(); });
    return isForm || under == centralWidget() || under == m_forms ||
           under == m_controller->Area()->viewport();
}

bool frmQDW::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        if (QLineEdit* const line = LineEditOf(watched))
            SelectAllOnFocus(*line, static_cast<QFocusEvent*>(event)->reason());
    } else if (event->type() == QEvent::MouseButtonRelease && watched == m_info->NameLabel()) {
        Guarded(m_parts.User, [this] { ShowOffsets(); });
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace deckforge
