// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "commands/OutputCommands.h"
#include "core/SetTables.h"
#include "core/modInfo.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

namespace deckforge {

constexpr Colour Red = 0x0000FF;
constexpr Colour Cream = 0xD0FFFF;

/// A workshop over a new set whose images go to a folder, and a user who answers from a script.
class WorkshopTest : public testing::Test {
protected:
    WorkshopTest()
    {
        (void)InitForm(Shop);
        Header().SaveTo = Folder.WithSeparator();
    }

    SetHeader& Header() { return Shop.Set.Header; }
    Card& FirstCard() { return Shop.Set.Cards[1]; }
    PictureBox& Surface() { return Shop.Surfaces.picACard; }

    TestFolder Folder;
    ScriptedUser User;
    Workshop Shop;
    ShownRun TheRun{User};
};

} // namespace deckforge
