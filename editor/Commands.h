// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace deckforge {

struct EditorParts;
class frmQDW;

/// Adds the commands to the window: tool bar and shortcuts. They are owned by the window.
void AddCommands(EditorParts& parts, frmQDW& window);

} // namespace deckforge
