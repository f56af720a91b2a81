#include "support/PixelText.h"

namespace deckforge {

namespace {

char LetterOf(Colour colour)
{
    for (const auto& [letter, its] : PixelLetters()) {
        if (its == colour)
            return letter;
    }
    return '?';
}

} // namespace

PixelRows RowsOf(const PictureBox& surface)
{
    PixelRows rows;
    for (int y = 0; y < surface.Height(); ++y) {
        std::string row;
        for (int x = 0; x < surface.Width(); ++x)
            row += LetterOf(surface.GetPixel(x, y));
        rows.push_back(row);
    }
    return rows;
}

PixelRows RowsOf(const Picture& picture)
{
    PictureBox surface(picture.Size());
    surface.SetPicture(picture);
    return RowsOf(surface);
}

PictureBox SurfaceOf(const PixelRows& rows)
{
    PictureBox surface(QSize(static_cast<int>(rows[0].size()), static_cast<int>(rows.size())));
    for (int y = 0; y < surface.Height(); ++y) {
        for (int x = 0; x < surface.Width(); ++x)
            surface.SetPixel(
                x, y, PixelLetters().at(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
    }
    return surface;
}

Picture PictureOf(const PixelRows& rows)
{
    return SurfaceOf(rows).Image();
}

Picture PictureOfPlaces(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, ToRgb(ColourOfPlace(x, y)));
    }
    return Picture(image);
}

Colour ColourOfPlace(int x, int y)
{
    constexpr Colour neverWhite = 0x400000;
    return neverWhite | (y & 0xFF) << 8 | (x & 0xFF);
}

} // namespace deckforge
