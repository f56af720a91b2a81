#pragma once

class QWidget;

namespace deckforge {

/// The wheel turns the list or number that the user works in, and none that only lies below the pointer: that
/// would change a card or a set unseen. It never turns tabs, since a look at one can make a card. To be
/// called once for a window or a dialog with all its controls.
void GuardFromWheel(QWidget& window);

} // namespace deckforge
