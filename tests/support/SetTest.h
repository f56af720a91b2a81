// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "commands/SetCommands.h"
#include "files/modFile.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

namespace deckforge {

/// A new set, a user who answers from a script, and a folder.
class SetTest : public testing::Test {
protected:
    SetTest() { InitSet(Set); }

    Card& FirstCard() { return Set.Cards[1]; }

    TestFolder Folder;
    ScriptedUser User;
    CardSet Set;
};

} // namespace deckforge
