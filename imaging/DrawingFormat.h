// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <utility>

namespace deckforge {

/// Converts to one of the two formats of 32-bit pixels that are drawn without conversion: one for opaque
/// pictures, one for others.
[[nodiscard]] inline QImage ForDrawing(QImage image)
{
    return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                    : QImage::Format_RGB32);
}

} // namespace deckforge
