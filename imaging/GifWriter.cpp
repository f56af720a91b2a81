#include "imaging/GifWriter.h"

#include "imaging/PictureLoader.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QImage>
#include <QScopeGuard>
#include <array>
#include <gif_lib.h>
#include <libimagequant.h>
#include <memory>
#include <vector>

namespace deckforge {

namespace {

constexpr int MostColours = 256;
/// From 1, the best palette, to 10; at 7 a card takes a quarter of the time of the default, and looks the
/// same.
constexpr int QuantiserSpeed = 7;

struct IndexedImage {
    int Width = 0;
    int Height = 0;
    std::vector<GifByteType> Pixels;
    std::vector<GifColorType> Colours;
};

template <class Handle>
using Owned = std::unique_ptr<Handle, void (*)(Handle*)>;

void Check(liq_error error)
{
    if (error != LIQ_OK)
        throw RunTimeError(error == LIQ_OUT_OF_MEMORY ? ErrorNumber::OutOfMemory
                                                      : ErrorNumber::InvalidPicture);
}

std::vector<GifColorType> ColoursOf(const liq_palette& palette)
{
    std::vector<GifColorType> colours;
    for (unsigned int i = 0; i < palette.count; ++i) {
        const liq_color& entry = palette.entries[i];
        colours.push_back({entry.r, entry.g, entry.b});
    }
    return colours;
}

IndexedImage Reduce(const QImage& picture)
{
    QImage image = picture.convertToFormat(QImage::Format_RGBA8888);
    const Owned<liq_attr> attributes(liq_attr_create(), liq_attr_destroy);
    Check(liq_set_max_colors(attributes.get(), MostColours));
    Check(liq_set_speed(attributes.get(), QuantiserSpeed));
    const Owned<liq_image> source(
        liq_image_create_rgba(attributes.get(), image.bits(), image.width(), image.height(), 0),
        liq_image_destroy);
    liq_result* made = nullptr;
    Check(liq_image_quantize(source.get(), attributes.get(), &made));
    const Owned<liq_result> result(made, liq_result_destroy);

    IndexedImage reduced{.Width = image.width(), .Height = image.height(), .Pixels = {}, .Colours = {}};
    reduced.Pixels.resize(static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()));
    Check(liq_write_remapped_image(result.get(), source.get(), reduced.Pixels.data(), reduced.Pixels.size()));
    reduced.Colours = ColoursOf(*liq_get_palette(result.get()));
    return reduced;
}

/// The palette of a file has a power of two of colours, at least two.
Owned<ColorMapObject> PaddedPalette(std::vector<GifColorType> colours)
{
    std::size_t size = 2;
    while (size < colours.size())
        size *= 2;
    colours.resize(size, GifColorType{});
    return {GifMakeMapObject(static_cast<int>(size), colours.data()), GifFreeMapObject};
}

int AppendBytes(GifFileType* gif, const GifByteType* bytes, int size)
{
    static_cast<QByteArray*>(gif->UserData)->append(reinterpret_cast<const char*>(bytes), size);
    return size;
}

void CheckGif(int result, const GifFileType& gif)
{
    if (result != GIF_OK)
        throw RunTimeError(ErrorNumber::InvalidPicture, QString::fromLatin1(GifErrorString(gif.Error)));
}

QByteArray Encode(IndexedImage image)
{
    if (image.Width > UINT16_MAX || image.Height > UINT16_MAX)
        throw RunTimeError(ErrorNumber::Overflow);
    QByteArray bytes;
    int error = 0;
    GifFileType* gif = EGifOpen(&bytes, AppendBytes, &error);
    if (gif == nullptr)
        throw RunTimeError(ErrorNumber::OutOfMemory);
    auto close = qScopeGuard([gif] { EGifCloseFile(gif, nullptr); });

    constexpr int bitsOfColour = 8;
    const Owned<ColorMapObject> palette = PaddedPalette(image.Colours);
    CheckGif(EGifPutScreenDesc(gif, image.Width, image.Height, bitsOfColour, 0, palette.get()), *gif);
    CheckGif(EGifPutImageDesc(gif, 0, 0, image.Width, image.Height, false, nullptr), *gif);
    for (int y = 0; y < image.Height; ++y)
        CheckGif(EGifPutLine(gif, image.Pixels.data() + std::ptrdiff_t{y} * image.Width, image.Width), *gif);
    close.dismiss();
    if (EGifCloseFile(gif, &error) != GIF_OK) // writes the end of the file
        throw RunTimeError(ErrorNumber::InvalidPicture, QString::fromLatin1(GifErrorString(error)));
    return bytes;
}

} // namespace

std::optional<QString> ConvertBmpToGif(const QString& bmpPath, const QString& gifPath)
{
    try {
        WithMemoryAsFailure([&] {
            const QByteArray gif = Encode(Reduce(DecodePicture(bmpPath).Pixels()));
            OutputFile file(gifPath);
            file.Write(gif);
            file.Close();
        });
    } catch (const RunTimeError& error) {
        return error.Description();
    }
    return std::nullopt;
}

} // namespace deckforge
