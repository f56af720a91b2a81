#pragma once

class QWidget;

namespace deckforge {

struct SetHeader;
class UserPort;

/// Lets the user change the font scheme of the set and the colour of the artist's line in a dialog over the
/// window that shows them on sample cards. What is changed is in the set at once; the caller dresses its own
/// previews again.
void EditFonts(SetHeader& header, UserPort& user, QWidget* window);

} // namespace deckforge
