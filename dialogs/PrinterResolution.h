#pragma once

#include <QString>

namespace deckforge {

/// How many pixels a print queue of this system has to the inch, as it is set up; 600 where it does not tell.
/// The printing library counts 1200 for every queue.
[[nodiscard]] int PrinterResolution(const QString& queue);

} // namespace deckforge
