// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

#include <vector>

namespace deckforge {

// The folders of the pictures that a set names, changed for many records at once: when pictures have moved,
// or a set comes from elsewhere. Backgrounds of large cards and characters and the pictures of user-designed
// backs are not among them.

/// One picture field of all records of a kind.
struct PathField {
    const char* Caption;
    int16 (*Count)(const CardSet&);
    bool (*IsListed)(const CardSet&, int16 row);
    const QString& (*Title)(const CardSet&, int16 row);
    QString& (*Path)(CardSet&, int16 row);
};

/// The fields in the order in which they are offered.
[[nodiscard]] const std::vector<PathField>& PathFields();

/// The rows of the field's records, those without a picture too; of the card backs only the set's own.
[[nodiscard]] std::vector<int16> ListedRows(const CardSet& set, const PathField& field);

/// Puts the pictures of the rows into another folder, each under its own name. A row without a picture gets
/// the folder alone; nothing tells whether there is such a file. An empty folder changes nothing.
void ChangeFolder(CardSet& set, const PathField& field, const std::vector<int16>& rows,
                  const QString& folder);

} // namespace deckforge
