// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <optional>

namespace deckforge {

/// A picture that was cropped from a photo: where it came from, so that the crop can be changed later.
struct FittedFrom {
    QString Photo;
    QRectF Part; ///< in pixels of the photo
};

/// Print twins are as fine as the photo, up to this scale: 768 dots per inch.
inline constexpr int MaxTwinScale = 8;

/// The scale of the print twin of a part in a frame: the highest one that invents no pixels; 1 for none.
[[nodiscard]] int TwinScale(QSizeF part, QSize frame);

/// Writes the part of the photo at the size of the frame as a PNG file, and its print twin unless its scale
/// would be 1. The files must not exist. Nothing is left of a file that cannot be written.
void WriteFitted(const QImage& photo, const FittedFrom& from, QSize frame, const QString& path);

/// Writes a PNG file. Nothing is left of a file that cannot be written.
void WritePng(const QImage& image, const QString& path);

/// What WriteFitted has noted in the file; nothing for any other picture.
[[nodiscard]] std::optional<FittedFrom> OriginOf(const QString& path);

/// A path of a new PNG file in the folder, with the name of the photo or, if it or its print twin exists, a
/// number behind it.
[[nodiscard]] QString NewPicturePath(const QString& folder, const QString& photo);

} // namespace deckforge
