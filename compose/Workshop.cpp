// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/Workshop.h"

#include <algorithm>

namespace deckforge {

namespace {

constexpr QSize ArtistStripSize = {180, 5};
constexpr QSize AttributeStripSize = {52, 12};
constexpr double ArtistPoints = 5.25;
constexpr double AttributePoints = 6;

Picture WhitePicture()
{
    QImage white(16, 16, QImage::Format_RGB32);
    white.fill(Qt::white);
    return Picture(white);
}

} // namespace

WorkSurfaces::WorkSurfaces(int scale)
    : picACard(CardSize, scale), picACardPP(CardSize, scale), picWhite(WhitePicture()),
      picArtist(ArtistStripSize, scale), picCharAttribute(AttributeStripSize, scale),
      picDone(CardSize, scale), picLargeSheet(CardSize, scale), picStore(CardSize, scale)
{
    picArtist.SetFontSize(ArtistPoints);
    picCharAttribute.SetFontSize(AttributePoints);
    picCharAttribute.SetBackColor(Black);
}

Workshop::Workshop(int scale, int fineness)
    : Templates(scale),
      Surfaces(scale), Carried{.Card = Surfaces.picACard.Pen(), .Piece = Surfaces.picACardPP.Pen()},
      Art(scale, fineness), Pictures(std::max(scale, fineness))
{
    Templates.Standard.picBack.Surface->SetPicture(Art.picBack());
    Templates.Character.picCharacter.Surface->SetPicture(Art.picCharacter());
}

} // namespace deckforge
