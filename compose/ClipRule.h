// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Records.h"

#include <QRect>
#include <optional>

namespace deckforge {

/// A picture behind a frame. Pixels; the offsets in twips as the record has them.
struct ClipInput {
    QSize Frame;
    QSize Picture;
    double PictureLeft = 0;
    double PictureTop = 0;
    int FrameInset = 0;          ///< 1 where an outline is drawn: the picture then starts inside it
    bool FrameHugsWidth = false; ///< the frame has moved in the picture's stead along this axis
    bool FrameHugsHeight = false;
};

/// What is copied: the source in pixels of the picture, the target from the frame's corner.
struct Clip {
    QRect Source;
    QPoint Target;
};

/// The part of a picture that its frame shows. A picture is never scaled: the frame is a clip window, and the
/// picture moves behind it. The source may reach past the picture's right and bottom edge, where there is
/// nothing to copy. Nothing when the frame shows none of it; error 6 for an offset past 16 bits of pixels.
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
