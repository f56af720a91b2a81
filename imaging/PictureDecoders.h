// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/PictureFormats.h"

#include <QImage>

namespace deckforge {

/// Decodes an SVG, TIFF, HEIC or AVIF picture in this process. SVG is drawn at `scale` times its size, which
/// is in pixels at 96 per inch. The null image if the picture is damaged, truncated or too large.
///
/// Their decoders can take unbounded time and memory: use DecodeApart() for files from strangers.
[[nodiscard]] QImage DecodeHere(const QByteArray& bytes, PictureFormat format, int scale);

/// The same in a process of its own, `deckforge-decode`, with limits of time and memory, which also keeps the
/// program alive if a decoder crashes. Error 57 if that program cannot be started.
[[nodiscard]] QImage DecodeApart(const QByteArray& bytes, PictureFormat format, int scale);

/// The other end of DecodeApart(): decodes standard input as the arguments say, and writes the pixels to
/// standard output. Returns the exit status.
[[nodiscard]] int RunDecoder(const QStringList& arguments);

} // namespace deckforge
