// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>

namespace deckforge {

/// A part of the image, which contains it, at another size. Enlarging is bicubic and takes the pixels around
/// the part into account, so that parts drawn side by side join without a seam; reducing averages.
[[nodiscard]] QImage Resampled(const QImage& image, const QRect& part, QSize size);

} // namespace deckforge
