// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArrayView>
#include <QImageIOHandler>
#include <QSize>
#include <QStringList>
#include <optional>

namespace deckforge {

/// Upper limit of the decoded size, at 4 bytes per pixel.
inline constexpr qint64 MaxDecodedBytes = qint64(128) << 20;
inline constexpr qint64 MaxDecodedPixels = MaxDecodedBytes / 4;

enum class PictureFormat { Unknown, Bmp, Jpeg, Gif, Wmf, Png, WebP, Tiff, Svg, Heif };

/// The suffixes of the files that can be read, in lower case.
[[nodiscard]] const QStringList& PictureSuffixes();

/// The format of a file by its contents; HEIC and AVIF are both Heif. Unknown if the picture is truncated,
/// since decoders accept half a BMP or JPEG without an error, or if decoding would take far longer than its
/// pixels justify. Error 481 with a reason for a BMP that Qt would show in wrong colours.
[[nodiscard]] PictureFormat FormatOf(QByteArrayView bytes);

/// How the picture of a PNG or WebP file is to be turned, by its EXIF data. Qt knows this of the other
/// formats.
[[nodiscard]] QImageIOHandler::Transformations OrientationOf(QByteArrayView bytes, PictureFormat format);

/// The size of a placeable WMF in pixels at 96 per inch; nothing for other files.
[[nodiscard]] std::optional<QSize> PlaceableWmfSize(QByteArrayView bytes);

} // namespace deckforge
