#pragma once

#include <QString>

namespace deckforge {

/// Dots per inch that a print queue of this system is configured with; 600 if it does not say, or if the
/// program was built without CUPS. (Qt reports 1200 for every queue.)
[[nodiscard]] int PrinterResolution(const QString& queue);

} // namespace deckforge
