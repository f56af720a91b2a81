// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/FontScheme.h"

#include "compose/IgnoreFailure.h"

namespace deckforge {

namespace {

std::vector<LabelFont> LabelFonts(CardTemplate& card)
{
    using enum FontClicks;
    return {
        {&card.lblType[0], &SetHeader::FontType, Two},
        {&card.lblType[1], &SetHeader::FontType, Two},
        {&card.lblType[2], &SetHeader::FontType, Two},
        {&card.lblType[3], &SetHeader::FontType, Two},
        {&card.lblNumber, &SetHeader::FontNumber, Two},
        {&card.lblTitle, &SetHeader::FontTitle, Two},
        {&card.lblBold, &SetHeader::FontBold, Two},
        {&card.lblInformation, &SetHeader::FontInformation, Two},
        {&card.lblAutonumber, &SetHeader::FontAutonumber, Two},
    };
}

} // namespace

void UseFont(PictureBox& surface, const FontSpec& font)
{
    IgnoreFailure([&] { surface.SetFontName(font.Name); });
    surface.SetFontBold(font.Bold);
    surface.SetFontItalic(font.Italic);
    IgnoreFailure([&] { surface.SetFontSize(font.Size); });
    surface.ForeColor = font.Color;
}

std::vector<LabelFont> LabelFonts(CardTemplates& templates)
{
    using enum FontClicks;
    LargeCardTemplate& large = templates.Large;
    CharacterTemplate& character = templates.Character;
    PlayingPieceTemplate& piece = templates.PlayingPiece;
    const std::vector<LabelFont> others = {
        {&large.lblTitleLarge, &SetHeader::FontTitleLarge, One},
        {&large.lblInformationLarge, &SetHeader::FontInformationLarge, One},
        {&large.lblAutonumberLarge, &SetHeader::FontAutonumber, None},
        {&character.lblCharacter, &SetHeader::FontCharacter, One},
        {&character.lblSpecialTitle, &SetHeader::FontSpecialTitle, One},
        {&character.lblSpecial, &SetHeader::FontSpecial, One},
        {&character.lblAlignment, &SetHeader::FontAlignment, One},
        {&character.lblAlignmentTitle, &SetHeader::FontAlignment, One},
        {&character.lblStart, &SetHeader::FontAlignment, One},
        {&character.lblStartTitle, &SetHeader::FontAlignment, One},
        {&character.lblAutonumberCharacter, &SetHeader::FontAutonumber, None},
        {&piece.lblPlayingPieceName, &SetHeader::FontPlayingPiece, One},
    };
    std::vector<LabelFont> labels = LabelFonts(templates.Standard);
    labels.insert(labels.end(), others.begin(), others.end());
    return labels;
}

void SetFont(CardTemplates& templates, const SetHeader& header)
{
    for (const LabelFont& row : LabelFonts(templates))
        row.Label->Font = header.*row.Font;
}

void ApplyOpenedSetFonts(CardTemplate& card, const SetHeader& header)
{
    for (const LabelFont& row : LabelFonts(card)) {
        if (row.Label != &card.lblType[2] && row.Label != &card.lblType[3])
            row.Label->Font = header.*row.Font;
    }
}

} // namespace deckforge
