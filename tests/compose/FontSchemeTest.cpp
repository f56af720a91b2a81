#include "compose/FontScheme.h"
#include "core/modInfo.h"
#include "files/SetFileFormat.h"
#include "support/Failures.h"

namespace deckforge {

TEST(FontScheme, DressesEveryLabelInItsFont)
{
    SetHeader header;
    CardTemplates templates(1);
    CardTemplate& card = templates.Standard;
    LargeCardTemplate& large = templates.Large;
    CharacterTemplate& character = templates.Character;
    int size = 0;
    for (FontSpec SetHeader::*font : setFile::Fonts)
        (header.*font).Size = ++size;
    const FontSpec objects = character.lblObjects.Font;
    SetFont(templates, header);
    using Sizes = std::vector<double>;
    const auto sizesOf = [](std::initializer_list<const Box*> labels) {
        Sizes sizes;
        for (const Box* label : labels)
            sizes.push_back(label->Font.Size);
        return sizes;
    };
    EXPECT_EQ(
        sizesOf({&card.lblTitle, &card.lblType[0], &card.lblType[1], &card.lblType[2], &card.lblType[3]}),
        (Sizes{1, 2, 2, 2, 2}));
    EXPECT_EQ(sizesOf({&card.lblNumber, &card.lblBold, &card.lblInformation, &card.lblAutonumber}),
              (Sizes{3, 4, 5, 6}));
    EXPECT_EQ(sizesOf({&large.lblAutonumberLarge, &large.lblTitleLarge, &large.lblInformationLarge}),
              (Sizes{6, 7, 8}));
    EXPECT_EQ(sizesOf({&character.lblAutonumberCharacter, &character.lblCharacter, &character.lblSpecialTitle,
                       &character.lblSpecial}),
              (Sizes{6, 9, 10, 11}));
    EXPECT_EQ(sizesOf({&character.lblAlignmentTitle, &character.lblAlignment, &character.lblStartTitle,
                       &character.lblStart}),
              (Sizes{12, 12, 12, 12}));
    EXPECT_EQ(sizesOf({&templates.PlayingPiece.lblPlayingPieceName}), Sizes{13});
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
