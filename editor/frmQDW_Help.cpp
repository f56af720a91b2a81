#include "dialogs/CardPreview.h"
#include "editor/frmQDW.h"
#include "platform/Twips.h"
#include "platform/Version.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollArea>
#include <algorithm>
#include <iterator>

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

/// Help answers to its key whatever else is held, which no shortcut does.
void frmQDW::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1)
        Guarded([this] { ShowHelp(); });
    else
        QMainWindow::keyPressEvent(event);
}

void frmQDW::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && IsBackground(event->position().toPoint()))
        Guarded([this] { ShowVersion(); });
    else
        QMainWindow::mouseDoubleClickEvent(event);
}

void frmQDW::ShowHelp()
{
    m_workshop.User.ShowMessage({.Text = QString::fromLatin1(HelpText),
                                 .Title = QStringLiteral("Help"),
                                 .Style = BoxStyle::Information});
}

void frmQDW::ShowVersion()
{
    const QString version = QStringLiteral("Version %1.%2.%3");
    m_workshop.User.ShowMessage({.Text = version.arg(VersionMajor).arg(VersionMinor).arg(VersionRevision),
                                 .Title = QStringLiteral("Hello!"),
                                 .Style = BoxStyle::Information});
}

/// Tells where the window and the card stand, in twips and pixels.
void frmQDW::ShowOffsets()
{
    const QSize window = frameGeometry().size();
    const Box& picCard = m_workshop.Templates.Standard.picCard;
    const QString text = QStringLiteral("Form height (Twip):%1, Form width (Twip):%2\r\n"
                                        "Form height:%3, Form width:%4\r\n"
                                        "Offset top:%5, Offset left:%6");
    m_workshop.User.ShowMessage({.Text = text.arg(window.height() * TwipsPerPixelY)
                                             .arg(window.width() * TwipsPerPixelX)
                                             .arg(window.height())
                                             .arg(window.width())
                                             .arg(picCard.Top)
                                             .arg(picCard.Left),
                                 .Title = QStringLiteral("Offset info"),
                                 .Style = BoxStyle::Plain});
}

/// Labels, bars and the card let a click through to the window; they are no background.
bool frmQDW::IsBackground(QPoint point) const
{
    const QWidget* const under = childAt(point);
    if (under == m_preview)
        return m_preview->BoxAt(m_preview->mapFrom(this, point)) == nullptr;
    const QWidget* const grounds[] = {
        centralWidget(),          fraCard, fraLargeCard, fraCharacter, fraCardBack, fraCard->parentWidget(),
        m_previewArea->viewport()};
    return std::find(std::begin(grounds), std::end(grounds), under) != std::end(grounds);
}

} // namespace deckforge
