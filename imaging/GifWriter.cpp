// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/GifWriter.h"

#include "imaging/ColourReduction.h"
#include "imaging/Owned.h"
#include "imaging/PictureLoader.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QImage>
#include <QScopeGuard>
#include <algorithm>
#include <gif_lib.h>
#include <vector>

namespace deckforge {

namespace {

constexpr int MaxColours = 256;

std::vector<GifColorType> ColoursOf(const QImage& image)
{
    std::vector<GifColorType> colours;
    for (const QRgb colour : image.colorTable())
        colours.push_back({static_cast<GifByteType>(qRed(colour)), static_cast<GifByteType>(qGreen(colour)),
                           static_cast<GifByteType>(qBlue(colour))});
    return colours;
}

/// GIF palettes have a power of two of colours, at least two.
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

QByteArray Encode(const QImage& image)
{
    if (image.width() > UINT16_MAX || image.height() > UINT16_MAX)
        throw RunTimeError(ErrorNumber::Overflow);
    QByteArray bytes;
    int error = 0;
    GifFileType* gif = EGifOpen(&bytes, AppendBytes, &error);
    if (gif == nullptr)
        throw RunTimeError(ErrorNumber::OutOfMemory);
    auto close = qScopeGuard([gif] { EGifCloseFile(gif, nullptr); });

    constexpr int bitsOfColour = 8;
    const Owned<ColorMapObject> palette = PaddedPalette(ColoursOf(image));
    CheckGif(EGifPutScreenDesc(gif, image.width(), image.height(), bitsOfColour, 0, palette.get()), *gif);
    CheckGif(EGifPutImageDesc(gif, 0, 0, image.width(), image.height(), false, nullptr), *gif);
    std::vector<GifByteType> line(static_cast<std::size_t>(image.width()));
    for (int y = 0; y < image.height(); ++y) {
        std::copy_n(image.constScanLine(y), line.size(), line.begin()); // EGifPutLine modifies its line
        CheckGif(EGifPutLine(gif, line.data(), image.width()), *gif);
    }
    close.dismiss();
    if (EGifCloseFile(gif, &error) != GIF_OK) // writes the trailer
        throw RunTimeError(ErrorNumber::InvalidPicture, QString::fromLatin1(GifErrorString(error)));
    return bytes;
}

} // namespace

std::optional<QString> ConvertBmpToGif(const QString& bmpPath, const QString& gifPath)
{
    try {
        WithMemoryAsFailure([&] {
            const QByteArray gif =
                Encode(WithColours(DecodePicture(bmpPath).Pixels(), MaxColours, Dither::Yes));
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
