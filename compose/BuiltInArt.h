// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/Picture.h"

#include <QCache>
#include <QSize>

namespace deckforge {

/// The built-in art: SVG files, rendered at the scale of the surfaces when first used and cached up to a
/// limit.
class BuiltInArt {
public:
    /// For a surface of scale 1 also at `fineness`.
    explicit BuiltInArt(int scale, int fineness = 1);

    /// The back of row index + 1 of the table of card backs, 150 x 254. Error 9 outside 0 to 26.
    /// Kept: 15, 16 and 18 have a palette of 256 colours at scale 1.
    [[nodiscard]] Picture imgCB(int index);
    /// 0 to 2 are the backs of characters, 302 x 254; 3 is the default back of large cards, 304 x 256. Error
    /// 9 for any other index.
    /// Kept: 3 has a palette of 16 colours at scale 1.
    [[nodiscard]] Picture imgChB(int index);
    /// The front of a character card, 302 x 254.
    [[nodiscard]] Picture picCharacter();
    /// The template of a user-designed back, 254 x 150, in pure black and white, at `fineness` times the
    /// scale.
    [[nodiscard]] Picture picBackTemplate(int fineness);
    /// The back on the preview before a card is shown, 150 x 254.
    [[nodiscard]] Picture picBack();

private:
    enum class Depth { TrueColour, Colours256, Colours16, BlackAndWhite };

    [[nodiscard]] Picture Rendered(const QString& name, QSize size, Depth depth = Depth::TrueColour);
    [[nodiscard]] Picture Rendered(const QString& name, QSize size, Depth depth, int scale);
    [[nodiscard]] static QImage AtDepth(const QImage& image, Depth depth);

    int m_scale;
    int m_fineness;
    QCache<QString, Picture> m_rendered;
};

} // namespace deckforge
