#include "core/PicturePaths.h"
#include "core/Vocabulary.h"
#include "support/Failures.h"

#include <QDir>

namespace deckforge {

namespace {

const PathField& Field(const char* caption)
{
    for (const PathField& field : PathFields()) {
        if (qstrcmp(field.Caption, caption) == 0)
            return field;
    }
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
}

/// Two records of each kind and one card back of its own, each with a text that tells its field.
CardSet SetWithPaths()
{
    CardSet set;
    InitCardBacks(set);
    set.CardCount = set.LargeCardCount = set.CharacterCount = 2;
    set.Cards.Resize(2);
    set.LargeCards.Resize(2);
    set.Characters.Resize(2);
    set.CardBackCount = 28;
    set.CardBacks.Resize(28);
    const auto name = [](const char* text) { return QString::fromLatin1(text); };
    set.Cards[2].Title = name("card");
    set.Cards[2].Picture = name("C:\\old\\card.bmp");
    set.Cards[2].Background = name("/old/ground.bmp");
    set.LargeCards[2].Title = name("large");
    set.LargeCards[2].Picture = name("large.bmp");
    set.LargeCards[2].CardBack = name("\\\\server\\share\\back.bmp");
    set.Characters[2].Name = name("character");
    set.Characters[2].Picture = name("/old/deep/character.bmp");
    set.Characters[2].PlayingPiece = name("a/b\\piece.bmp");
    set.CardBacks[28] = {.Name = name("own"), .Picture = name("C:own.bmp"), .BuiltIn = false};
    return set;
}

} // namespace

TEST(PicturePaths, EveryFieldTakesTheFolderAndKeepsItsName)
{
    struct Case {
        const char* Caption;
        std::vector<int16> Rows;
        const char* Title;
        const char* Changed;
    };
    for (const Case& c : {Case{"Card", {1, 2}, "card", "/new/card.bmp"},
                          Case{"Large Card", {1, 2}, "large", "/new/large.bmp"},
                          Case{"Character", {1, 2}, "character", "/new/character.bmp"},
                          Case{"Card Back", {28}, "own", "/new/C:own.bmp"},
                          Case{"Playing Piece", {1, 2}, "character", "/new/piece.bmp"},
                          Case{"Large Card Back", {1, 2}, "large", "/new/back.bmp"},
                          Case{"Card Background", {1, 2}, "card", "/new/ground.bmp"}}) {
        CardSet set = SetWithPaths();
        const PathField& field = Field(c.Caption);
        EXPECT_EQ(ListedRows(set, field), c.Rows) << c.Caption;
        const int16 row = c.Rows.back();
        EXPECT_EQ(field.Title(set, row), QString::fromLatin1(c.Title));
        ChangeFolder(set, field, {row}, QStringLiteral("/new/"));
        EXPECT_EQ(field.Path(set, row), QString::fromLatin1(c.Changed));
        EXPECT_EQ(set.Cards[1].Picture + set.LargeCards[1].Picture + set.Characters[1].PlayingPiece,
                  QString());
    }
}

TEST(PicturePaths, SeparatorIsAddedUnlessThereIsOne)
{
    const QString own = QString(QDir::separator());
    for (const auto& [folder, expected] : {std::pair{"/new", "/new" + own + "card.bmp"},
                                           {"D:\\new", "D:\\new" + own + "card.bmp"},
                                           {"D:\\new\\", QStringLiteral("D:\\new\\card.bmp")},
                                           {"/new/", QStringLiteral("/new/card.bmp")},
                                           {"", QStringLiteral("C:\\old\\card.bmp")}}) {
        CardSet set = SetWithPaths();
        ChangeFolder(set, Field("Card"), {2}, QString::fromLatin1(folder));
        EXPECT_EQ(set.Cards[2].Picture, expected);
    }
}

TEST(PicturePaths, RowWithoutPictureGetsTheFolderAlone)
{
    CardSet set = SetWithPaths();
    ChangeFolder(set, Field("Card"), {1}, QStringLiteral("/new"));
    EXPECT_EQ(set.Cards[1].Picture, QStringLiteral("/new") + QDir::separator());
}

} // namespace deckforge
