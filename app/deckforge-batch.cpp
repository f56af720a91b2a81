// SPDX-License-Identifier: GPL-3.0-or-later

#include "batch/BatchCommands.h"
#include "platform/Files.h"

#include <QGuiApplication>
#include <QLoggingCategory>

int main(int argc, char* argv[])
{
    deckforge::TakeSizeLimitAsFullDisk();
    // Text and pictures need QtGui, but neither a window nor a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Keep messages of the libraries off standard error.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false\n*.info=false"));
    const QGuiApplication application(argc, argv);
    return static_cast<int>(deckforge::RunBatch(QGuiApplication::arguments().sliced(1)));
}
