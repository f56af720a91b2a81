// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace deckforge {

/// The configured resolution of a print queue in dots per inch; 600 if it is unknown or the program was
/// built without CUPS. Qt reports 1200 for every queue.
[[nodiscard]] int PrinterResolution(const QString& queue);

} // namespace deckforge
