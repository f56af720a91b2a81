#pragma once

class QTabBar;

namespace deckforge {

/// Ctrl-Tab goes to the next tab from everywhere in the window, with Shift to the one before, round and
/// round.
void BindTabKeys(QTabBar& tabs);

} // namespace deckforge
