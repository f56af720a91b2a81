#pragma once

#include <QByteArray>

namespace deckforge {

/// The bytes of a WMF file as those of a PNG of the file's own size, which may have mostPixels. The converter
/// runs in a process of its own, which gets ten seconds and 512 MiB. Error 481 when it fails or is missing.
[[nodiscard]] QByteArray WmfToPng(const QByteArray& wmf, qint64 mostPixels);

} // namespace deckforge
