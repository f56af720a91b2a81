// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "output/ImageNames.h"
#include "output/RunReport.h"

namespace deckforge {

// Image files of composed cards, one by one and all of a kind.

/// Where the image of a card is written to.
struct ImageTarget {
    /// The path that the user chose; without it the card's file name, or else its title, in the set's folder.
    std::optional<QString> Chosen = {};
    /// The sheet that the card is placed on; without it an image of its own is written.
    std::optional<int16> Sheet = {};
};

/// Names the composed card of the index and writes its image, or places it on a sheet. Returns the path of
/// the image. A failure before the writing returns nothing and leaves the card its name.
///
/// A character's playing piece is written with its card; on a sheet a character writes nothing. A
/// user-designed back is shown and composed anew. Failures are reported, and so are pictures that the
/// composed card lacks.
std::optional<FilePath> SaveImage(Workshop& workshop, RunReport& report, CardKind kind, int16 index,
                                  const ImageTarget& target = {});

/// Composes each card of a kind and writes its image.
void SaveImages(Workshop& workshop, RunReport& report, CardKind kind);

/// The built-in backs as BMP files, except the blank one, and those of characters. A failure is thrown.
void WriteCardBacks(Workshop& workshop, const QString& folder);

} // namespace deckforge
