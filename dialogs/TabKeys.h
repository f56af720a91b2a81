// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QTabBar;

namespace deckforge {

/// Ctrl+Tab selects the next tab from anywhere in the window, Ctrl+Shift+Tab the previous one, both wrapping
/// around.
void BindTabKeys(QTabBar& tabs);

} // namespace deckforge
