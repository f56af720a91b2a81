#include "dialogs/QtUser.h"
#include "editor/frmQDW.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/deckforge/icon/varnhelm-deck-forge.svg")));
    deckforge::QtUser user;
    deckforge::frmQDW window(user);
    user.Serve(&window, [&](int done, int total) { window.ShowProgress(done, total); });
    window.show();
    // In the event loop, so that what the reader tells stands over the window.
    const QString commandLine = QApplication::arguments().sliced(1).join(QLatin1Char(' '));
    QTimer::singleShot(0, &window, [&] { window.Start(commandLine); });
    return QApplication::exec();
}
