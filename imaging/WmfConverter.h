// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

namespace deckforge {

/// Converts a WMF file to a PNG file of at most maxPixels, in a separate process limited to ten seconds and
/// 512 MiB. A placeable one is drawn at `scale` times its size, others at the size that the converter
/// chooses. Error 481 if it fails, 57 with the converter's name if it cannot be started.
[[nodiscard]] QByteArray WmfToPng(const QByteArray& wmf, qint64 maxPixels, int scale);

} // namespace deckforge
