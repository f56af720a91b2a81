// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace deckforge {

/// Shows the program, its version and its authors. The link opens in the web browser.
void ShowAbout(QWidget* window);

} // namespace deckforge
