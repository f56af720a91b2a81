// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/QtUser.h"
#include "editor/frmQDW.h"
#include "platform/Files.h"
#include "platform/TerminationGuard.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <QWindow>

namespace {

/// Below 32 pixels a simpler drawing is used.
QIcon ProgramIcon()
{
    const QIcon drawing(QStringLiteral(":/deckforge/icon/varnhelm-deck-forge.svg"));
    const QIcon simple(QStringLiteral(":/deckforge/icon/varnhelm-deck-forge-small.svg"));
    QIcon icon;
    for (const int size : {16, 24})
        icon.addPixmap(simple.pixmap(size));
    for (const int size : {32, 48, 64, 128, 256, 512})
        icon.addPixmap(drawing.pixmap(size));
    return icon;
}

/// Waits until the desktop shows the window, for a second at most.
void WaitForPlace(const QWindow& window)
{
    constexpr int milliseconds = 1000;
    QTimer timeout;
    timeout.setSingleShot(true);
    timeout.start(milliseconds);
    while (!window.isExposed() && timeout.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::ExcludeUserInputEvents);
}

} // namespace

int main(int argc, char* argv[])
{
    deckforge::TakeSizeLimitAsFullDisk();
    const QApplication application(argc, argv);
    QApplication::setWindowIcon(ProgramIcon());
    deckforge::QtUser user;
    deckforge::frmQDW window(user);
    user.Serve(&window, [&](int done, int total) { window.ShowProgress(done, total); });
    window.show();
    const deckforge::TerminationGuard terminationGuard([&window] { window.RescueAtExit(); });
    // In the event loop, so that message boxes appear over the window.
    const QString commandLine = QApplication::arguments().sliced(1).join(QLatin1Char(' '));
    QTimer::singleShot(0, &window, [&] {
        WaitForPlace(*window.windowHandle());
        window.Start(commandLine);
    });
    return QApplication::exec();
}
