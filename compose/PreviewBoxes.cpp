#include "compose/PreviewBoxes.h"

namespace deckforge {

std::vector<PreviewBox> PreviewBoxes(const CardTemplate& card)
{
    const Box* const picCard = &card.picCard;
    return {
        {picCard, nullptr, BoxLook::Surface},
        {&card.lblType[0], picCard, BoxLook::Label},
        {&card.lblType[1], picCard, BoxLook::Label},
        {&card.lblType[2], picCard, BoxLook::Label},
        {&card.lblType[3], picCard, BoxLook::Label},
        {&card.lblNumber, picCard, BoxLook::Label},
        {&card.lblTitle, picCard, BoxLook::Label},
        {&card.lblPicSize, picCard, BoxLook::Label},
        {&card.lblBold, picCard, BoxLook::Label},
        {&card.lblInformation, picCard, BoxLook::Label},
        {&card.lblAutonumber, picCard, BoxLook::Label},
        {&card.lblWatermark, picCard, BoxLook::Label},
        {&card.picFrame, picCard, BoxLook::Frame},
        {&card.picImage, &card.picFrame, BoxLook::Picture},
        {&card.picArtistDest, picCard, BoxLook::Surface},
        {&card.picSymbol, picCard, BoxLook::Surface},
        {&card.picBack, nullptr, BoxLook::Surface},
    };
}

} // namespace deckforge
