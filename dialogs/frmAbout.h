// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QWidget;

namespace deckforge {

/// Shows the program, its version and its authors. The link opens in the web browser.
void ShowAbout(QWidget* window);

/// The authors' e-mail address, at the host of their web site.
[[nodiscard]] QString ContactAddress();

} // namespace deckforge
