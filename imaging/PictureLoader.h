// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/Picture.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QCache>
#include <QString>
#include <optional>

namespace deckforge {

/// Decodes a BMP, JPEG, GIF or WMF file, recognized by its contents. The natural size is the size in pixels,
/// of a WMF its own size at 96 pixels per inch. Of an animated GIF the first image is returned.
///
/// Files are untrusted. A missing file is error 53 or 76, anything but a regular file 75, and a file that is
/// damaged, truncated, of another format or over 128 MiB decoded is 481. WMF files are converted by a
/// separate process with limits of time and memory; error 57 names the converter if it is missing.
[[nodiscard]] Picture DecodePicture(const QString& path);

/// Loads pictures by path. Decoded pictures are cached, up to a limit in bytes, while size and time of their
/// files do not change, so that a batch decodes a shared background once.
class PictureLoader {
public:
    PictureLoader();

    /// The picture of the file; the empty picture for an empty path. Fails as DecodePicture does, at the
    /// path.
    [[nodiscard]] Picture LoadPicture(const QString& path);

private:
    struct Kept {
        Picture Decoded;
        FileAttributes File;
        std::optional<RunTimeError> Failure;
    };
    QCache<QString, Kept> m_kept;
};

} // namespace deckforge
