#pragma once

namespace deckforge {

struct EditorParts;
class frmQDW;

/// Adds the commands to the window: the tool bar and the keys. They end with the window.
void AddCommands(EditorParts& parts, frmQDW& window);

} // namespace deckforge
