// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/Box.h"

#include "platform/Numbers.h"
#include "platform/RunTimeError.h"
#include "platform/Twips.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace deckforge {

namespace {

int CheckedExtent(int extent)
{
    if (extent < 0)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    return extent;
}

int ClampedTo16Bits(double pixels)
{
    constexpr double min = std::numeric_limits<int16>::min();
    constexpr double max = std::numeric_limits<int16>::max();
    return ToInt16(std::clamp(pixels, min, max));
}

} // namespace

Box::Box(BoxList& list, const Box* parent, const QRect& place, BoxDesign&& design)
    : BoxDesign(std::move(design)), List(list), Parent(parent), Left(place.x()), Top(place.y()),
      Width(place.width()), Height(place.height()), Design(place.size())
{
    const int border = 2 * BorderWidth();
    if (Look == BoxLook::Surface || Look == BoxLook::Picture)
        Surface.emplace(Design - QSize(border, border), list.Scale);
    list.Boxes.push_back(this);
}

Box::Box(BoxList& list, const QRect& place, BoxDesign design) : Box(list, nullptr, place, std::move(design))
{
}

Box::Box(Box& parent, const QRect& place, BoxDesign design)
    : Box(parent.List, &parent, place, std::move(design))
{
}

void Box::SetWidth(int width)
{
    Width = CheckedExtent(width);
}

void Box::SetHeight(int height)
{
    Height = CheckedExtent(height);
}

void Box::ShowAtNaturalSize(const Picture& picture)
{
    const QSize size = picture.IsEmpty() ? Design : picture.Size();
    Width = size.width();
    Height = size.height();
    Surface->SetSize(size);
    Surface->SetPicture(picture);
}

void Box::MoveToTwips(double left, double top)
{
    Left = PixelsFromTwipsX(left);
    Top = PixelsFromTwipsY(top);
}

int PixelsFromTwipsX(double twips)
{
    return ClampedTo16Bits(twips / TwipsPerPixelX);
}

int PixelsFromTwipsY(double twips)
{
    return ClampedTo16Bits(twips / TwipsPerPixelY);
}

} // namespace deckforge
