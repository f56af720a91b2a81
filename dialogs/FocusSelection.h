#pragma once

#include <Qt>

class QLineEdit;

namespace deckforge {

/// Selects the whole text of a box that has just got the keyboard, so that it is ready for new text. Coming
/// back to the window, or from a menu of the box, leaves its selection as it was.
void SelectAllOnFocus(QLineEdit& box, Qt::FocusReason reason);

} // namespace deckforge
