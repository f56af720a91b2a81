// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

namespace deckforge {

struct SetHeader;
class UserPort;

/// Lets the user change the font scheme of the set and the colour of the artist's credit, with sample cards.
/// Changes are written to the set at once; the caller updates its own previews.
void EditFonts(SetHeader& header, UserPort& user, QWidget* window);

} // namespace deckforge
