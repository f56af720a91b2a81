// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "output/ImageNames.h"
#include "output/RunReport.h"

namespace deckforge {

/// Where the image of a card is written to.
struct ImageTarget {
    /// The path chosen by the user. Otherwise the card's file name, else its title, in the set's folder.
    std::optional<QString> Chosen = {};
    /// The sheet on which to place the card instead of writing an image.
    std::optional<int16> Sheet = {};
};

/// Sets the file name of the composed card, and writes its image or places it on a sheet. Failures and
/// missing pictures are reported. Returns the path of the image; nothing, with the file name unchanged, if a
/// failure occurred before writing.
///
/// The playing piece is written with its character. User-designed backs are composed again.
std::optional<FilePath> SaveImage(Workshop& workshop, RunReport& report, CardKind kind, int16 index,
                                  const ImageTarget& target = {});

/// Composes each card of a kind and writes its image.
void SaveImages(Workshop& workshop, RunReport& report, CardKind kind);

/// Writes the built-in backs (except the blank one) and those of characters as BMP files. Failures are
/// thrown.
void WriteCardBacks(const CardSet& set, BuiltInArt& art, const QString& folder);

} // namespace deckforge
