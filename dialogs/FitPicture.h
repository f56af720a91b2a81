// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"
#include "imaging/PictureLoader.h"

class QWidget;

namespace deckforge {

/// Lets the user crop a picture to a frame, and writes the result and its print twin into the set's pictures
/// folder. A picture that was fitted before starts with its photo and the part chosen then, if the photo
/// still exists. Returns the path of the new file; nothing if cancelled.
[[nodiscard]] std::optional<QString> FitToFrame(const CardSet& set, const PictureLoader& pictures,
                                                const QString& path, QSize frame, QWidget* window);

/// Writes pixels that have no file into the set's pictures folder. Returns the path of the new file.
[[nodiscard]] QString KeepPicture(const CardSet& set, const QImage& image);

} // namespace deckforge
