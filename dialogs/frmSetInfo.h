// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QString;
class QWidget;

namespace deckforge {

class BuiltInArt;
class PictureLoader;
class UserPort;
struct CardSet;

/// Lets the user add card backs and card types to the set, and choose the values of new cards. Changes are
/// written to the set at once; the caller fills its lists again.
///
/// lastBackFile is the last file chosen for a back: the next file dialog starts there.
void EditSetInfo(CardSet& set, BuiltInArt& art, PictureLoader& pictures, UserPort& user,
                 QString& lastBackFile, QWidget* window);

} // namespace deckforge
