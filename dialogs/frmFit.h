// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "fitting/Crop.h"

#include <QImage>
#include <optional>

class QWidget;

namespace deckforge {

/// Lets the user choose the part of the photo that fills a frame, from the given crop on. Nothing if
/// cancelled.
[[nodiscard]] std::optional<QRectF> ChoosePart(const QImage& photo, QSize frame, const Crop& start,
                                               QWidget* window);

/// "Prints at 288 dots per inch", for a part in a frame.
[[nodiscard]] QString PrintQualityText(const QRectF& part, QSize frame);

} // namespace deckforge
