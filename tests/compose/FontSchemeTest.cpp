#include "compose/FontScheme.h"
#include "core/modInfo.h"
#include "files/SetFileFormat.h"
#include "support/Failures.h"

namespace deckforge {

TEST(FontScheme, DressesEveryLabelInItsFont)
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
    const std::pair<const Box&, double> rows[] = {{card.lblTitle, 1},
                                                  {card.lblType[0], 2},
                                                  {card.lblType[1], 2},
                                                  {card.lblType[2], 2},
                                                  {card.lblType[3], 2},
                                                  {card.lblNumber, 3},
                                                  {card.lblBold, 4},
                                                  {card.lblInformation, 5},
                                                  {card.lblAutonumber, 6},
                                                  {large.lblAutonumberLarge, 6},
                                                  {large.lblTitleLarge, 7},
                                                  {large.lblInformationLarge, 8},
                                                  {character.lblAutonumberCharacter, 6},
                                                  {character.lblCharacter, 9},
                                                  {character.lblSpecialTitle, 10},
                                                  {character.lblSpecial, 11},
                                                  {character.lblAlignmentTitle, 12},
                                                  {character.lblAlignment, 12},
                                                  {character.lblStartTitle, 12},
                                                  {character.lblStart, 12},
                                                  {templates.PlayingPiece.lblPlayingPieceName, 13}};
    for (const auto& [label, points] : rows)
        EXPECT_EQ(label.Font.Size, points) << label.Name.toStdString();
    EXPECT_EQ(character.lblObjects.Font, objects) << "outside the scheme";
}

TEST(FontScheme, AnOpenedSetLeavesTheSecondLineOfTheTypeAsItWas)
{
    SetHeader header;
    SetDefaultFont(header);
    header.FontType.Size = 12;
    CardTemplate card(1);
    DressOpenedSet(card, header);
    EXPECT_EQ(card.lblType[0].Font.Size, 12);
    EXPECT_EQ(card.lblType[1].Font.Size, 12);
    EXPECT_EQ(card.lblType[2].Font.Size, 6.75);
    EXPECT_EQ(card.lblTitle.Font.Size, 7);
}

} // namespace deckforge
