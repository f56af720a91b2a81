// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Records.h"

#include <QRect>
#include <optional>

namespace deckforge {

/// A picture behind a frame. Sizes are in pixels, offsets in twips.
struct ClipInput {
    QSize Frame;
    QSize Picture;
    double PictureLeft = 0;
    double PictureTop = 0;
    int FrameInset = 0;          ///< 1 if the frame has an outline, which the picture must not cover
    bool FrameHugsWidth = false; ///< the frame is as wide as the picture and moves in its place
    bool FrameHugsHeight = false;
};

/// The source rectangle in the picture, and its target relative to the frame's corner.
struct Clip {
    QRect Source;
    QPoint Target;
};

/// The part of a picture that its frame shows; nothing if it shows none. The picture moves behind the frame
/// and is never scaled. The source may extend past the picture's right and bottom edge. Error 6 for an offset
/// past 16 bits of pixels.
///
///      frame                       negative offset: the source starts inside the picture
///     +--------------+             positive offset: the target starts inside the frame
///     |  +-----------|------+
///     |  | source    | cut  |
///     +--------------+      |
///        |     picture      |
///        +------------------+
[[nodiscard]] std::optional<Clip> ClipPicture(const ClipInput& in);

} // namespace deckforge
