// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/Picture.h"

#include <QCache>
#include <QSize>

namespace deckforge {

/// The art that comes with the program: vector drawings, rendered at the scale of the surfaces when first
/// shown and kept up to a bound in bytes.
class BuiltInArt {
public:
    explicit BuiltInArt(int scale);

    /// The back of row index + 1 of the table of card backs, 150 x 254; 15, 16 and 18 have a palette of 256
    /// colours. Error 9 outside 0 to 26.
    [[nodiscard]] Picture imgCB(int index);
    /// The backs of character cards, 0 to 2, 302 x 254; 3 is the usual back of large cards, 304 x 256,
    /// with a palette of 16 colours. Error 9 for any other.
    [[nodiscard]] Picture imgChB(int index);
    /// The front of a character card, 302 x 254.
    [[nodiscard]] Picture picCharacter();
    /// The template of a user-designed back, 254 x 150, of black and white alone.
    [[nodiscard]] Picture picBackTemplate();
    /// The back that a card shows before it has one of its own, 150 x 254.
    [[nodiscard]] Picture picBack();

private:
    enum class Depth { TrueColour, Colours256, Colours16, BlackAndWhite };

    [[nodiscard]] Picture Rendered(const QString& name, QSize size, Depth depth = Depth::TrueColour);
    [[nodiscard]] static QImage AtDepth(const QImage& image, Depth depth);

    int m_scale;
    QCache<QString, Picture> m_rendered;
};

} // namespace deckforge
