// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/PicturePaths.h"
#include "core/SetTables.h"
#include "support/SetTest.h"

namespace deckforge {

/// A set with two records of each kind and one own card back. Each text names its field.
class PicturePathsTest : public SetTest {
protected:
    PicturePathsTest()
    {
        AddElement<Card>(Set);
        for (int i = 1; i <= 2; ++i) {
            AddElement<LargeCard>(Set);
            AddElement<Character>(Set);
        }
        Set.Cards[2].Picture = "C:\\old\\card.bmp";
        Set.Cards[2].Background = "/old/ground.bmp";
        Set.LargeCards[2].Picture = "large.bmp";
        Set.LargeCards[2].CardBack = "\\\\server\\share\\back.bmp";
        Set.Characters[2].Picture = "/old/deep/character.bmp";
        Set.Characters[2].PlayingPiece = "a/b\\piece.bmp";
        AddOwnBack(Set, "own", "C:own.bmp");
    }

    static const PathField& Field(const char* caption)
    {
        for (const PathField& field : PathFields()) {
            if (qstrcmp(field.Caption, caption) == 0)
                return field;
        }
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
};

TEST_F(PicturePathsTest, EveryFieldGetsTheFolderAndKeepsItsFileName)
{
    const std::tuple<const char*, std::vector<int16>, const char*, const char*> cases[] = {
        {"Card", {1, 2}, "CARD 2", "/new/card.bmp"},
        {"Large Card", {1, 2}, "LARGE CARD 2", "/new/large.bmp"},
        {"Character", {1, 2}, "CHARACTER 2", "/new/character.bmp"},
        {"Card Back", {28}, "own", "/new/C:own.bmp"},
        {"Playing Piece", {1, 2}, "CHARACTER 2", "/new/piece.bmp"},
        {"Large Card Back", {1, 2}, "LARGE CARD 2", "/new/back.bmp"},
        {"Card Background", {1, 2}, "CARD 2", "/new/ground.bmp"}};
    for (const auto& [caption, rows, title, changed] : cases) {
        SCOPED_TRACE(caption);
        CardSet set = Set;
        const PathField& field = Field(caption);
        EXPECT_EQ(field.Rows(set), rows);
        const int16 row = rows.back();
        EXPECT_EQ(field.Title(set, row), title);
        ChangeFolder(set, field, {row}, "/new/");
        EXPECT_EQ(field.Path(set, row), changed);
        for (const QString& other :
             {set.Cards[1].Picture, set.LargeCards[1].Picture, set.Characters[1].PlayingPiece})
            EXPECT_EQ(other, "") << "of a row that was not chosen";
    }
}

TEST_F(PicturePathsTest, ASeparatorIsAddedIfMissing)
{
    for (const auto& [folder, expected] : {std::pair{"/new", "/new/card.bmp"},
                                           {"D:\\new\\", "D:\\new\\card.bmp"},
                                           {"", "C:\\old\\card.bmp"}}) {
        CardSet set = Set;
        ChangeFolder(set, Field("Card"), {2}, folder);
        EXPECT_EQ(set.Cards[2].Picture, expected);
    }
}

} // namespace deckforge
