#pragma once

class QWidget;

namespace deckforge {

struct Workshop;

/// Lets the user change the font scheme of the set and the colour of the artist's line in a dialog over the
/// window that shows them on sample cards. What is changed is in the set at once; the caller dresses its own
/// previews again.
void EditFonts(Workshop& workshop, QWidget* window);

} // namespace deckforge
