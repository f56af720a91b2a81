#pragma once

#include <QString>

class QWidget;

namespace deckforge {

/// Tells of the program and its makers in a dialog over the window. Its link opens in the web browser.
void ShowAbout(QWidget* window);

/// Where the makers are written to: a box of the host of their web site.
[[nodiscard]] QString ContactAddress();

} // namespace deckforge
