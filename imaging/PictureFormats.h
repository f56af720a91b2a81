#pragma once

#include <QByteArrayView>
#include <QSize>
#include <optional>

namespace deckforge {

/// Upper limits of a picture that can be shown: decoded, at 4 bytes per pixel.
inline constexpr qint64 MaxDecodedBytes = qint64(128) << 20;
inline constexpr qint64 MaxDecodedPixels = MaxDecodedBytes / 4;

enum class PictureFormat { Unknown, Bmp, Jpeg, Gif, Wmf };

/// The format of a file by its content. A file that breaks off before the end of its picture is Unknown:
/// decoders accept half a BMP or JPEG without an error. So is one that would keep a decoder busy with far
/// more than the pixels of its picture. Throws 481 with the reason for a BMP whose colours the decoder would
/// get wrong.
[[nodiscard]] PictureFormat FormatOf(QByteArrayView bytes);

/// The size of a placeable WMF in pixels at 96 per inch; nothing for other files.
[[nodiscard]] std::optional<QSize> PlaceableWmfSize(QByteArrayView bytes);

} // namespace deckforge
