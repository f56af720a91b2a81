// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"

#include <QStringList>

namespace deckforge {

/// The folder of the pictures that are made for a set: "SET NAME pictures" beside the set file, or in the
/// program's folder for a set that was never saved. With a trailing separator. It need not exist.
[[nodiscard]] QString PicturesFolder(const CardSet& set);

/// The folders where a picture that is not at its path is looked for by its name: beside the set file, and
/// the folder of its pictures, named after the set or its file.
[[nodiscard]] QStringList FoldersOfPictures(const CardSet& set);

} // namespace deckforge
