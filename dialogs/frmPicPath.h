#pragma once

class QWidget;

namespace deckforge {

struct Workshop;

/// Lets the user change the folders of the set's pictures. Changes are written to the records at once; the
/// caller shows them again.
void EditPicturePaths(Workshop& workshop, QWidget* window);

} // namespace deckforge
