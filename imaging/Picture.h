// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>

namespace deckforge {

/// An image with a scale: copied by value, with shared pixels.
///
/// Sizes are in logical pixels. An image from a surface of scale n has n x n physical pixels per logical one.
/// A picture from a file can have a finer image besides, for surfaces of a scale above 1.
class Picture {
public:
    Picture() = default; ///< the empty picture

    /// The size of the image divided by the scale is the natural size.
    explicit Picture(QImage image, int scale = 1);

    /// `finer` has the same size.
    Picture(QImage image, Picture finer);

    [[nodiscard]] bool IsEmpty() const { return m_image.isNull(); }
    [[nodiscard]] QSize Size() const { return m_image.size() / m_scale; }
    [[nodiscard]] int Scale() const { return m_scale; }

    /// The physical pixels: Size() times Scale().
    [[nodiscard]] const QImage& Pixels() const { return m_image; }

    /// The image to draw on a surface of that scale.
    [[nodiscard]] Picture ForScale(int scale) const;

    /// The memory of all images.
    [[nodiscard]] qint64 Bytes() const;

private:
    QImage m_image;
    int m_scale = 1;
    QImage m_finer;
    int m_finerScale = 1;
};

inline constexpr int LogicalPixelsPerInch = 96;

/// Writes a BMP file with 24 bits per pixel, or with the depth of the palette, at 96 logical pixels per inch.
/// Throws if the file cannot be written, and error 481 for an empty picture.
void SavePicture(const Picture& picture, const QString& path);

} // namespace deckforge
