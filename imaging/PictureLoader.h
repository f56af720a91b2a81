#pragma once

#include "imaging/Picture.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QCache>
#include <QString>
#include <optional>

namespace deckforge {

/// Decodes a BMP, JPEG, GIF or WMF file, told by its content. The natural size is its size in pixels, of a
/// WMF its own size at 96 dots to the inch. An animated GIF gives its first picture.
///
/// Files come from strangers: a missing one is error 53 or 76, what is no regular file 75, and one that is
/// damaged, cut short, of another kind or over 128 MiB decoded is 481. WMF is converted in a process of its
/// own with limits of time and memory; error 57 names the program that is missing.
[[nodiscard]] Picture DecodePicture(const QString& path);

/// Pictures by path. Decoded ones are kept, up to a bound in bytes, as long as their file has the same size
/// and time, so that a batch decodes a shared background once.
class PictureLoader {
public:
    PictureLoader();

    /// The picture of the file, or the empty picture for an empty path. Fails as DecodePicture does, with the
    /// path as the place.
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
