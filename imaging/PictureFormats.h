#pragma once

#include <QByteArrayView>
#include <QSize>
#include <optional>

namespace deckforge {

/// Of a picture that can be shown, in four bytes to the pixel.
inline constexpr qint64 MostDecodedBytes = qint64(128) << 20;
inline constexpr qint64 DecodedPixelBytes = 4;

enum class PictureFormat { Unknown, Bmp, Jpeg, Gif, Wmf };

/// What a file is by its content. A file that breaks off before the end of its picture is Unknown: decoders
/// take the half of a BMP or JPEG without a word. So is one that would keep a decoder busy with much more
/// than the pixels of its picture.
[[nodiscard]] PictureFormat FormatOf(QByteArrayView bytes);

/// The size of a WMF in pixels at 96 to the inch, from the header that says where it is to be placed. Nothing
/// where it has none.
[[nodiscard]] std::optional<QSize> PlaceableWmfSize(QByteArrayView bytes);

} // namespace deckforge
