#include "compose/FontScheme.h"
#include "core/modInfo.h"
#include "support/Failures.h"

namespace deckforge {

TEST(FontScheme, DressesEveryLabelInItsFont)
{
    SetHeader header;
    CardTemplates templates(1);
    CardTemplate& card = templates.Standard;
    LargeCardTemplate& large = templates.Large;
    CharacterTemplate& character = templates.Character;
    struct Row {
        FontSpec SetHeader::*Font;
        std::vector<const Box*> Labels;
    };
    const Row rows[] = {
        {&SetHeader::FontType, {&card.lblType[0], &card.lblType[1], &card.lblType[2], &card.lblType[3]}},
        {&SetHeader::FontNumber, {&card.lblNumber}},
        {&SetHeader::FontTitle, {&card.lblTitle}},
        {&SetHeader::FontBold, {&card.lblBold}},
        {&SetHeader::FontInformation, {&card.lblInformation}},
        {&SetHeader::FontAutonumber,
         {&card.lblAutonumber, &large.lblAutonumberLarge, &character.lblAutonumberCharacter}},
        {&SetHeader::FontTitleLarge, {&large.lblTitleLarge}},
        {&SetHeader::FontInformationLarge, {&large.lblInformationLarge}},
        {&SetHeader::FontCharacter, {&character.lblCharacter}},
        {&SetHeader::FontSpecialTitle, {&character.lblSpecialTitle}},
        {&SetHeader::FontSpecial, {&character.lblSpecial}},
        {&SetHeader::FontAlignment,
         {&character.lblAlignmentTitle, &character.lblAlignment, &character.lblStartTitle,
          &character.lblStart}},
        {&SetHeader::FontPlayingPiece, {&templates.PlayingPiece.lblPlayingPieceName}},
    };
    double size = 1;
    for (const Row& row : rows)
        (header.*row.Font).Size = size++;
    const FontSpec objects = character.lblObjects.Font;
    SetFont(templates, header);
    size = 1;
    for (const Row& row : rows) {
        for (const Box* label : row.Labels)
            EXPECT_EQ(label->Font.Size, size) << label->Name.toStdString();
        ++size;
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
