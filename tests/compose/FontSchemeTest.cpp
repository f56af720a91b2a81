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
    const std::vector<const Box*> labels[] = {
        {&card.lblTitle},
        {&card.lblType[0], &card.lblType[1], &card.lblType[2], &card.lblType[3]},
        {&card.lblNumber},
        {&card.lblBold},
        {&card.lblInformation},
        {&card.lblAutonumber, &large.lblAutonumberLarge, &character.lblAutonumberCharacter},
        {&large.lblTitleLarge},
        {&large.lblInformationLarge},
        {&character.lblCharacter},
        {&character.lblSpecialTitle},
        {&character.lblSpecial},
        {&character.lblAlignmentTitle, &character.lblAlignment, &character.lblStartTitle,
         &character.lblStart},
        {&templates.PlayingPiece.lblPlayingPieceName}};
    size = 0;
    for (const auto& ofFont : labels) {
        ++size;
        for (const Box* label : ofFont)
            EXPECT_EQ(label->Font.Size, size) << label->Name.toStdString();
    }
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
