#pragma once

#include <QImage>

namespace deckforge {

/// A picture as it can lie on a surface: copied by value, its pixels shared.
///
/// Sizes are logical pixels, the natural size of the picture. The memory behind it may be finer: what was
/// drawn on a surface of scale n has n x n pixels of memory to each logical one.
class Picture {
public:
    Picture() = default; ///< the empty picture

    /// An image whose natural size is its size divided by the scale.
    explicit Picture(QImage image, int scale = 1);

    [[nodiscard]] bool IsEmpty() const { return m_image.isNull(); }
    [[nodiscard]] QSize Size() const { return m_image.size() / m_scale; }
    [[nodiscard]] int Scale() const { return m_scale; }

    /// The memory: Size() times Scale().
    [[nodiscard]] const QImage& Pixels() const { return m_image; }

private:
    QImage m_image;
    int m_scale = 1;
};

inline constexpr int LogicalPixelsPerInch = 96;

/// Writes a picture as a BMP file: 24 bits a pixel, or the depth of its palette, 96 logical pixels to the
/// inch. A failure of the file is thrown, and error 481 for an empty picture.
void SavePicture(const Picture& picture, const QString& path);

} // namespace deckforge
