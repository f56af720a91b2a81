// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/PictureDecoders.h"

#include "imaging/Owned.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <libheif/heif.h>
#include <tiffio.h>

namespace deckforge {

namespace {

bool IsWithinLimit(QSize size)
{
    return !size.isEmpty() && qint64{size.width()} * size.height() <= MaxDecodedPixels;
}

QImage DecodeSvg(const QByteArray& bytes, int scale)
{
    QSvgRenderer drawing(bytes);
    const QSize size = drawing.defaultSize() * scale;
    if (!drawing.isValid() || !IsWithinLimit(size))
        return {};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    return image;
}

/// Set by the library's own handler: a reader that finds part of the rows missing returns the others.
bool TiffHasError = false;

QImage DecodeTiff(QByteArray bytes)
{
    TiffHasError = false;
    TIFFSetErrorHandler([](const char*, const char*, va_list) { TiffHasError = true; });
    TIFFSetWarningHandler(nullptr);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "tiff");
    reader.setAutoTransform(true);
    if (!IsWithinLimit(reader.size()))
        return {};
    const QImage image = reader.read();
    return TiffHasError ? QImage() : image;
}

/// The library turns the picture upright.
QImage DecodeHeif(const QByteArray& bytes)
{
    const Owned<heif_context> context(heif_context_alloc(), heif_context_free);
    const auto size = static_cast<std::size_t>(bytes.size());
    if (heif_context_read_from_memory_without_copy(context.get(), bytes.constData(), size, nullptr).code != 0)
        return {};
    heif_image_handle* found = nullptr;
    if (heif_context_get_primary_image_handle(context.get(), &found).code != 0)
        return {};
    const Owned<const heif_image_handle> handle(found, heif_image_handle_release);
    const QSize declared(heif_image_handle_get_width(found), heif_image_handle_get_height(found));
    if (!IsWithinLimit(declared))
        return {};
    heif_image* decoded = nullptr;
    if (heif_decode_image(found, &decoded, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr).code !=
        0)
        return {};
    const Owned<const heif_image> pixels(decoded, heif_image_release);
    int stride = 0;
    const uint8_t* const rows = heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
    const QImage image(rows, heif_image_get_width(decoded, heif_channel_interleaved),
                       heif_image_get_height(decoded, heif_channel_interleaved), stride,
                       heif_image_handle_has_alpha_channel(found) != 0 ? QImage::Format_RGBA8888
                                                                       : QImage::Format_RGBX8888);
    return image.copy();
}

} // namespace

QImage DecodeHere(const QByteArray& bytes, PictureFormat format, int scale)
{
    switch (format) {
    case PictureFormat::Svg:
        return DecodeSvg(bytes, scale);
    case PictureFormat::Tiff:
        return DecodeTiff(bytes);
    case PictureFormat::Heif:
        return DecodeHeif(bytes);
    default:
        return {};
    }
}

} // namespace deckforge
