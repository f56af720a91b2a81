#include "dialogs/QtUser.h"
#include "editor/frmQDW.h"
#include "platform/Files.h"
#include "platform/LastAct.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <QWindow>

namespace {

/// The program's icon: below 32 pixels a drawing of fewer shapes.
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

/// Until the desktop has placed the window; one that it keeps hidden is not waited for long.
void WaitForPlace(const QWindow& window)
{
    constexpr int milliseconds = 1000;
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(milliseconds);
    while (!window.isExposed() && patience.isActive())
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
    const deckforge::LastAct lastAct([&window] { window.RescueAtTheEnd(); });
    // In the event loop, so that what the reader tells stands over the window.
    const QString commandLine = QApplication::arguments().sliced(1).join(QLatin1Char(' '));
    QTimer::singleShot(0, &window, [&] {
        WaitForPlace(*window.windowHandle());
        window.Start(commandLine);
    });
    return QApplication::exec();
}
