#include "compose/FontScheme.h"

#include "compose/Attempt.h"

namespace deckforge {

void UseFont(PictureBox& surface, const FontSpec& font)
{
    Attempt([&] { surface.SetFontName(font.Name); });
    surface.SetFontBold(font.Bold);
    surface.SetFontItalic(font.Italic);
    Attempt([&] { surface.SetFontSize(font.Size); });
    surface.ForeColor = font.Color;
}

void SetFont(CardTemplates& templates, const SetHeader& header)
{
    CardTemplate& card = templates.Standard;
    for (Box& type : card.lblType)
        type.Font = header.FontType;
    card.lblNumber.Font = header.FontNumber;
    card.lblTitle.Font = header.FontTitle;
    card.lblBold.Font = header.FontBold;
    card.lblInformation.Font = header.FontInformation;
    card.lblAutonumber.Font = header.FontAutonumber;

    LargeCardTemplate& large = templates.Large;
    large.lblAutonumberLarge.Font = header.FontAutonumber;
    large.lblTitleLarge.Font = header.FontTitleLarge;
    large.lblInformationLarge.Font = header.FontInformationLarge;

    CharacterTemplate& character = templates.Character;
    character.lblAutonumberCharacter.Font = header.FontAutonumber;
    character.lblCharacter.Font = header.FontCharacter;
    character.lblSpecialTitle.Font = header.FontSpecialTitle;
    character.lblSpecial.Font = header.FontSpecial;
    for (Box* label : {&character.lblAlignmentTitle, &character.lblAlignment, &character.lblStartTitle,
                       &character.lblStart})
        label->Font = header.FontAlignment;
    templates.PlayingPiece.lblPlayingPieceName.Font = header.FontPlayingPiece;
}

void DressOpenedSet(CardTemplate& card, const SetHeader& header)
{
    card.lblType[0].Font = header.FontType;
    card.lblType[1].Font = header.FontType;
    card.lblNumber.Font = header.FontNumber;
    card.lblTitle.Font = header.FontTitle;
    card.lblBold.Font = header.FontBold;
    card.lblInformation.Font = header.FontInformation;
    card.lblAutonumber.Font = header.FontAutonumber;
}

} // namespace deckforge
