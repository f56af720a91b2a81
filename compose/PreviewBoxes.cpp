// SPDX-License-Identifier: GPL-3.0-or-later

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
        {&card.lblPicSize, picCard, BoxLook::Label, DragAxis::UpDown},
        {&card.lblBold, picCard, BoxLook::Label},
        {&card.lblInformation, picCard, BoxLook::Label},
        {&card.lblAutonumber, picCard, BoxLook::Label},
        {&card.lblWatermark, picCard, BoxLook::Label},
        {&card.picFrame, picCard, BoxLook::Frame},
        {&card.picImage, &card.picFrame, BoxLook::Picture, DragAxis::All},
        {&card.picArtistDest, picCard, BoxLook::Surface},
        {&card.picSymbol, picCard, BoxLook::Surface},
        {&card.picBack, nullptr, BoxLook::Surface},
    };
}

std::vector<PreviewBox> PreviewBoxes(const LargeCardTemplate& card)
{
    const Box* const picCardLarge = &card.picCardLarge;
    return {
        {picCardLarge, nullptr, BoxLook::Surface},
        {&card.lblPicSizeLarge, picCardLarge, BoxLook::Label, DragAxis::LeftRight},
        {&card.lblTitleLarge, picCardLarge, BoxLook::Label},
        {&card.lblInformationLarge, picCardLarge, BoxLook::Label},
        {&card.lblAutonumberLarge, picCardLarge, BoxLook::Label},
        {&card.lblWatermark, picCardLarge, BoxLook::Label},
        {&card.picFrameLarge, picCardLarge, BoxLook::Frame},
        {&card.picImageLarge, &card.picFrameLarge, BoxLook::Picture, DragAxis::All},
        {&card.picSymbolLarge, picCardLarge, BoxLook::Surface},
        {&card.picBackLarge, nullptr, BoxLook::Surface},
    };
}

std::vector<PreviewBox> PreviewBoxes(const CharacterTemplate& card)
{
    const Box* const picCharacter = &card.picCharacter;
    const Box* const panel = &card.picBackgroundChar;
    std::vector<PreviewBox> boxes = {
        {picCharacter, nullptr, BoxLook::Surface},
        {&card.lblCharacter, picCharacter, BoxLook::Label},
        {&card.lblObjects, picCharacter, BoxLook::Label},
        {&card.lblFollowers, picCharacter, BoxLook::Label},
    };
    for (const Box& strip : card.picCharAttrDisp)
        boxes.push_back({&strip, picCharacter, BoxLook::Surface});
    boxes.push_back({panel, picCharacter, BoxLook::Surface});
    boxes.push_back({&card.lblPicSizeCharacter, panel, BoxLook::Label, DragAxis::LeftRight});
    for (const Box* label :
         {&card.lblAlignmentTitle, &card.lblAlignment, &card.lblStartTitle, &card.lblStart,
          &card.lblSpecialTitle, &card.lblSpecial, &card.lblAutonumberCharacter, &card.lblWatermark})
        boxes.push_back({label, panel, BoxLook::Label});
    boxes.push_back({&card.picFrameCharacter, panel, BoxLook::Frame});
    boxes.push_back({&card.picImageCharacter, &card.picFrameCharacter, BoxLook::Picture, DragAxis::All});
    boxes.push_back({&card.picSymbolCharacter, panel, BoxLook::Surface});
    boxes.push_back({&card.picCharacterBack, nullptr, BoxLook::Surface});
    return boxes;
}

std::vector<PreviewBox> PreviewBoxes(const PlayingPieceTemplate& piece)
{
    const Box* const picPlayingPiece = &piece.picPlayingPiece;
    return {
        {picPlayingPiece, nullptr, BoxLook::Surface},
        {&piece.lblPlayingPieceName, picPlayingPiece, BoxLook::Label},
        {&piece.lblWatermark, picPlayingPiece, BoxLook::Label},
        {&piece.CutLine, picPlayingPiece, BoxLook::Outline},
        {&piece.picPlayingPieceFrame, picPlayingPiece, BoxLook::WhiteFrame},
        {&piece.picPlayingPieceImage, &piece.picPlayingPieceFrame, BoxLook::Picture, DragAxis::All},
    };
}

std::vector<PreviewBox> PreviewBoxes(const NewBackTemplate& back)
{
    return {
        {&back.picNewBack, nullptr, BoxLook::Surface},
        {&back.lblBackTitle, &back.picNewBack, BoxLook::Label},
        {&back.lblWatermark, &back.picNewBack, BoxLook::Label},
    };
}

std::vector<PreviewBox> PreviewBoxes(const CardTemplates& templates)
{
    std::vector<PreviewBox> all;
    for (const auto& boxes :
         {PreviewBoxes(templates.Standard), PreviewBoxes(templates.Large), PreviewBoxes(templates.Character),
          PreviewBoxes(templates.PlayingPiece), PreviewBoxes(templates.NewBack)})
        all.insert(all.end(), boxes.begin(), boxes.end());
    return all;
}

} // namespace deckforge
