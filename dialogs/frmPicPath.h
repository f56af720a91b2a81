// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace deckforge {

struct CardSet;
class UserPort;

/// Lets the user change the folders of the set's pictures. Changes are written to the records at once; the
/// caller shows them again.
void EditPicturePaths(CardSet& set, UserPort& user, QWidget* window);

} // namespace deckforge
