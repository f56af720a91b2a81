// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <Qt>

class QLineEdit;

namespace deckforge {

/// Selects the text of a box that has just got the focus, so that typing replaces it. The selection stays
/// when the focus returns from another window or from the context menu.
void SelectAllOnFocus(QLineEdit& box, Qt::FocusReason reason);

} // namespace deckforge
