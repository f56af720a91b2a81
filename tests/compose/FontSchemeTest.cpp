// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/FontScheme.h"
#include "core/modInfo.h"
#include "files/SetFileFormat.h"
#include "support/Failures.h"

namespace deckforge {

TEST(FontScheme, AppliesTheFontOfEveryLabel)
{
    SetHeader header;
    CardTemplates templates(1);
    const CardTemplate& card = templates.Standard;
    const LargeCardTemplate& large = templates.Large;
    const CharacterTemplate& character = templates.Character;
    const FontSpec objects = character.lblObjects.Font;
    int size = 0;
    for (FontSpec SetHeader::*font : setFile::Fonts)
        (header.*font).Size = ++size;
    SetFont(templates, header);
    const auto expect = [&](const FontSpec& font, std::initializer_list<const Box*> labels) {
        for (const Box* label : labels)
            EXPECT_EQ(label->Font.Size, font.Size);
    };
    expect(header.FontTitle, {&card.lblTitle});
    expect(header.FontType, {&card.lblType[0], &card.lblType[1], &card.lblType[2], &card.lblType[3]});
    expect(header.FontNumber, {&card.lblNumber});
    expect(header.FontBold, {&card.lblBold});
    expect(header.FontInformation, {&card.lblInformation});
    expect(header.FontAutonumber, {&card.lblAutonumber, &large.lblAutonumberLarge});
    expect(header.FontAutonumber, {&character.lblAutonumberCharacter});
    expect(header.FontTitleLarge, {&large.lblTitleLarge});
    expect(header.FontInformationLarge, {&large.lblInformationLarge});
    expect(header.FontCharacter, {&character.lblCharacter});
    expect(header.FontSpecialTitle, {&character.lblSpecialTitle});
    expect(header.FontSpecial, {&character.lblSpecial});
    expect(header.FontAlignment, {&character.lblAlignmentTitle, &character.lblAlignment});
    expect(header.FontAlignment, {&character.lblStartTitle, &character.lblStart});
    expect(header.FontPlayingPiece, {&templates.PlayingPiece.lblPlayingPieceName});
    EXPECT_EQ(character.lblObjects.Font, objects) << "outside the scheme";
}

TEST(FontScheme, AnOpenedSetKeepsTheFontsOfTheSecondTypeLine)
{
    SetHeader header;
    SetDefaultFont(header);
    header.FontType.Size = 12;
    CardTemplate card(1);
    ApplyOpenedSetFonts(card, header);
    EXPECT_EQ(card.lblType[0].Font.Size, 12);
    EXPECT_EQ(card.lblType[1].Font.Size, 12);
    EXPECT_EQ(card.lblType[2].Font.Size, 6.75);
    EXPECT_EQ(card.lblTitle.Font.Size, 7);
}

} // namespace deckforge
