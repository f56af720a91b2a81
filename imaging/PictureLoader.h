// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/Picture.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QCache>
#include <QStringList>
#include <optional>
#include <vector>

namespace deckforge {

/// Decodes a picture file, recognized by its contents: BMP, JPEG, GIF, WMF, PNG, WebP, TIFF, SVG, HEIC or
/// AVIF. The natural size is the size in pixels, of drawings (SVG and WMF) their own size at 96 pixels per
/// inch. Photos are turned upright. Of several images in a file the first is returned.
///
/// Files are untrusted. A missing file is error 53 or 76, anything but a regular file 75, and a file that is
/// damaged, truncated, of another format or over 128 MiB decoded is 481, with the reason. Formats whose
/// decoders have no limits of their own are decoded by a separate process with limits of time and memory;
/// error 57 names it if it is missing.
[[nodiscard]] Picture DecodePicture(const QString& path);

/// Loads pictures by path, and caches them while size and time of their files do not change, so that a batch
/// decodes a shared background once. The cache has a limit in bytes, but always keeps the newest picture.
///
/// For a scale above 1 a picture also has finer pixels, if there are any: a drawing at that scale, or the
/// print twin of a file. The print twin of "dragon.jpg" is a file "dragon@4x.jpg" in the same folder with
/// exactly 4 times the width and height; it may have any other number and format.
class PictureLoader {
public:
    explicit PictureLoader(int scale = 1);

    /// The folders where a missing picture is looked for by its name.
    void SearchIn(const QStringList& folders) { m_folders = folders; }

    /// The picture of the file; the empty picture for an empty path. Fails as DecodePicture does, at the
    /// path.
    [[nodiscard]] Picture LoadPicture(const QString& path);

    /// The file that is used for a path: the path itself, or if it does not exist a file of its name in one
    /// of the folders.
    [[nodiscard]] QString Find(const QString& path) const;

private:
    struct Kept {
        Picture Decoded;
        FileAttributes File;
        std::optional<RunTimeError> Failure;
    };
    [[nodiscard]] Picture Decode(const QString& path) const;

    int m_scale;
    QStringList m_folders;
    QCache<QString, Kept> m_kept;
};

struct PrintTwin {
    QString Path;
    int Scale = 1; ///< by its name
};

/// The print twins of a picture file in ascending order of their scales, by their names.
[[nodiscard]] std::vector<PrintTwin> PrintTwinsOf(const QString& path);

/// The path of a picture's print twin: "dragon@4x.png" for "dragon.png".
[[nodiscard]] QString PrintTwinPath(const QString& path, int scale);

} // namespace deckforge
