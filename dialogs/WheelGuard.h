// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace deckforge {

/// Wheel events change only lists and spin boxes that have the focus, so that scrolling over one does not
/// change a card unnoticed. They never change tabs, since selecting a tab can create a card. Call once the
/// window or dialog has all its controls.
void GuardFromWheel(QWidget& window);

} // namespace deckforge
