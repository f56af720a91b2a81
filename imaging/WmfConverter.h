#pragma once

#include <QByteArray>

namespace deckforge {

/// Converts a WMF file to a PNG file of the same size, at most maxPixels. The converter runs in a process of
/// its own with ten seconds and 512 MiB. Error 481 if it fails, and 57 with its name if it cannot be started.
[[nodiscard]] QByteArray WmfToPng(const QByteArray& wmf, qint64 maxPixels);

} // namespace deckforge
