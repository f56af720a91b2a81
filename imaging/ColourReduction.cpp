// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/ColourReduction.h"

#include "imaging/Owned.h"
#include "platform/RunTimeError.h"

#include <libimagequant.h>
#include <vector>

namespace deckforge {

namespace {

/// From 1, best, to 10. At 7 a card takes a quarter of the default's time and looks the same.
constexpr int QuantiserSpeed = 7;

void Check(liq_error error)
{
    if (error != LIQ_OK)
        throw RunTimeError(error == LIQ_OUT_OF_MEMORY ? ErrorNumber::OutOfMemory
                                                      : ErrorNumber::InvalidPicture);
}

QList<QRgb> ColoursOf(const liq_palette& palette)
{
    QList<QRgb> colours;
    for (unsigned int i = 0; i < palette.count; ++i) {
        const liq_color& entry = palette.entries[i];
        colours.append(qRgb(entry.r, entry.g, entry.b));
    }
    return colours;
}

} // namespace

QImage WithColours(const QImage& picture, int colours, Dither dither)
{
    QImage image = picture.convertToFormat(QImage::Format_RGBA8888);
    const Owned<liq_attr> attributes(liq_attr_create(), liq_attr_destroy);
    Check(liq_set_max_colors(attributes.get(), colours));
    Check(liq_set_speed(attributes.get(), QuantiserSpeed));
    const Owned<liq_image> source(
        liq_image_create_rgba(attributes.get(), image.bits(), image.width(), image.height(), 0),
        liq_image_destroy);
    liq_result* made = nullptr;
    Check(liq_image_quantize(source.get(), attributes.get(), &made));
    const Owned<liq_result> result(made, liq_result_destroy);
    Check(liq_set_dithering_level(result.get(), dither == Dither::Yes ? 1 : 0));

    QImage reduced(image.size(), QImage::Format_Indexed8);
    if (reduced.isNull())
        throw RunTimeError(ErrorNumber::OutOfMemory);
    std::vector<unsigned char*> rows;
    rows.reserve(static_cast<std::size_t>(reduced.height()));
    for (int y = 0; y < reduced.height(); ++y)
        rows.push_back(reduced.scanLine(y));
    Check(liq_write_remapped_image_rows(result.get(), source.get(), rows.data()));
    reduced.setColorTable(ColoursOf(*liq_get_palette(result.get())));
    return reduced;
}

} // namespace deckforge
