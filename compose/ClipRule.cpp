// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/ClipRule.h"

#include "platform/Numbers.h"
#include "platform/Twips.h"

#include <algorithm>

namespace deckforge {

namespace {

/// The rule along one axis.
struct AxisClip {
    int Source;
    int Target;
    int Extent;
};

AxisClip ClipAxis(int frame, int picture, int offset, int inset, bool hugs)
{
    const int source = std::max(0, -offset);
    const int target = source != 0 || hugs ? 0 : offset;
    int extent = offset + picture;
    if (hugs)
        extent = frame - 2;
    else if (offset + picture + inset > frame)
        extent = std::min(frame - offset - inset, frame);
    return {source, target, extent};
}

} // namespace

std::optional<Clip> ClipPicture(const ClipInput& in)
{
    const int left = ToInt16(in.PictureLeft / TwipsPerPixelX);
    const int top = ToInt16(in.PictureTop / TwipsPerPixelY);
    const int inset = in.FrameInset;
    const AxisClip x = ClipAxis(in.Frame.width(), in.Picture.width(), left, inset, in.FrameHugsWidth);
    const AxisClip y = ClipAxis(in.Frame.height(), in.Picture.height(), top, inset, in.FrameHugsHeight);
    const bool shows = x.Target + inset < in.Frame.width() && y.Target + inset < in.Frame.height() &&
                       x.Extent >= 1 && y.Extent >= 1;
    if (!shows)
        return std::nullopt;
    return Clip{.Source = {x.Source, y.Source, x.Extent, y.Extent},
                .Target = {x.Target + inset, y.Target + inset}};
}

} // namespace deckforge
