// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

#include <QStringList>

namespace deckforge {

/// What happened to the pictures of a packed set.
struct PackOutcome {
    int Copied = 0;       ///< pictures, without print twins
    QStringList Problems; ///< "FILE: reason" of each picture that is missing or no picture
};

/// Writes a copy of the set with all its pictures and their print twins into a folder, which works wherever
/// the folder is moved: the pictures are in "SET NAME pictures" beside the set file, and the set has only
/// their names.
///
/// The folder must be empty or not exist; else error 75, with nothing written. A picture that cannot be
/// copied keeps its path. Files that are no pictures are not copied, since the set may come from a stranger
/// and the copy go to others.
[[nodiscard]] PackOutcome PackSet(CardSet set, const QString& setFile, const QString& folder);

} // namespace deckforge
