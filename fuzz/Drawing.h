// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QGuiApplication>

namespace deckforge {

/// Starts QtGui once for all inputs of a fuzzer.
inline void StartDrawing()
{
    static int argc = 1;
    static char name[] = "fuzzer";
    static char* argv[] = {name, nullptr};
    static const QGuiApplication application(argc, argv);
}

} // namespace deckforge
