// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

#include <vector>

namespace deckforge {

// Changing the folder of pictures for many records at once, for example after the pictures were moved.
// Kept: backgrounds of large cards and characters, and pictures of user-designed backs, cannot be changed
// here.

/// One picture field of all records of a kind.
struct PathField {
    const char* Caption;
    /// The rows that the dialog lists, including records without a picture. Built-in card backs are left out.
    std::vector<int16> (*Rows)(const CardSet&);
    const QString& (*Title)(const CardSet&, int16 row);
    QString& (*Path)(CardSet&, int16 row);
};

/// The fields in the order of the dialog.
[[nodiscard]] const std::vector<PathField>& PathFields();

/// Replaces the folder in the paths of the rows and keeps the file names. Does not check that the files
/// exist. An empty folder changes nothing.
/// Kept: a row without a picture gets the folder as its path.
void ChangeFolder(CardSet& set, const PathField& field, const std::vector<int16>& rows,
                  const QString& folder);

} // namespace deckforge
