#pragma once

#include "compose/BuiltInArt.h"
#include "compose/CardTemplates.h"
#include "core/CardSet.h"
#include "imaging/PictureLoader.h"
#include "platform/UserPort.h"

namespace deckforge {

/// The hidden surfaces on which cards are composed. What one composition leaves on them, fonts and colours
/// among it, is there for the next.
struct WorkSurfaces {
    explicit WorkSurfaces(int scale);

    PictureBox picACard;   ///< standard, large and character cards, and the turned new back
    PictureBox picACardPP; ///< the playing piece and the new back
    Picture picWhite;      ///< all white; stretched over a frame it blanks it
    PictureBox picArtist;  ///< the artist's credit before it is turned, 180 x 5
    PictureBox picDone;    ///< the final picture of a card, with its outline and back
};

/// What every operation works on, with or without a window: the set, its templates and surfaces, the art, and
/// the user.
///
/// With a scale of n all surfaces are n times as fine; the cards are the same.
struct Workshop {
    explicit Workshop(UserPort& user, int scale = 1);

    UserPort& User;
    CardSet Set;
    CardTemplates Templates;
    WorkSurfaces Surfaces;
    BuiltInArt Art;
    PictureLoader Pictures;
};

} // namespace deckforge
