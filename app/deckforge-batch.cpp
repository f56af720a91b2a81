#include "batch/BatchCommands.h"
#include "platform/Files.h"

#include <QGuiApplication>
#include <QLoggingCategory>

int main(int argc, char* argv[])
{
    deckforge::TakeSizeLimitAsFullDisk();
    // Text and pictures need the drawing library, but there is no window and need be no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Standard error is for what the program itself tells, not for the remarks of its libraries.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false\n*.info=false"));
    const QGuiApplication application(argc, argv);
    return static_cast<int>(deckforge::RunBatch(QGuiApplication::arguments().sliced(1)));
}
