// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/PictureDecoders.h"

#include <QGuiApplication>

// Decodes one picture for the other two programs, which set limits of time and memory for it.

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // a drawing may have texts
    const QGuiApplication application(argc, argv);
    return deckforge::RunDecoder(QGuiApplication::arguments().sliced(1));
}
