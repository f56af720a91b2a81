// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/modCapture.h"
#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/StandardCard.h"
#include "output/ImageWriters.h"
#include "platform/Paths.h"
#include "support/EveryKind.h"
#include "support/WorkshopTest.h"

namespace deckforge {

using ImageTest = WorkshopTest;

TEST(ImageNames, FollowPrefixNumberAndKind)
{
    const std::tuple<const char*, bool, const char*, int, int, const char*> rows[] = {
        {"set", false, "", 7, 120, "set Sword.jpg"},
        {"set", true, "", 7, 120, "set 007 Sword.jpg"},
        {"", false, "", 7, 120, "Sword.jpg"},
        {"", true, "", 7, 9, "7 Sword.jpg"},
        {"set", true, "", 12, 1500, "set 0012 Sword.jpg"},
        {"", false, "Large ", 7, 9, "Large  Sword.jpg"},
        {"a", true, "Large ", 7, 99, "Large a 07 Sword.jpg"}};
    SetHeader header;
    header.SaveFormat = 1;
    for (const auto& [prefix, fileNr, kind, index, count, expected] : rows) {
        header.FilenamePrefix = prefix;
        header.FileNr = fileNr;
        EXPECT_EQ(ImageName(header, kind, "Sword", index, count), expected);
    }
}

TEST(ImageNames, HaveNoOuterSpacesAndNumberSheetsByTheCards)
{
    SetHeader header;
    EXPECT_EQ(ImageName(header, {}, "  \u00A0Sword", 1, 1), "\u00A0Sword.bmp") << "lost at the ends";
    const FilePath path = {"/my cards/", "set 7 Sword.bmp"};
    EXPECT_EQ(PathToWrite(header, path), "/my cards/set 7 Sword.bmp");
    header.ReplaceSpace = true;
    EXPECT_EQ(PathToWrite(header, path), "/my cards/set_7_Sword.bmp");
    EXPECT_EQ(FixFileName(header, "a b"), "a_b");
    for (const char* name : {"../a.bmp", "a\\b.bmp"}) {
        const FilePath outside = {"/out/", name};
        EXPECT_EQ(FailureOf([&] { (void)PathToWrite(header, outside); }), 52);
    }

    header = {};
    header.SetName = "Sea";
    EXPECT_EQ(SheetName(header, " Sheet ", 2, 59, 6), "Sea Sheet 02.bmp");
    header.FilenamePrefix = "s";
    EXPECT_EQ(SheetName(header, " Sheet Large ", 2, 53, 6), "s Sheet Large 2.bmp");
}

TEST_F(ImageTest, CardAndBackAreSideBySideInTheirOutlines)
{
    AddOneOfEachKind(Shop.Set);
    FirstCard().CardBack = 2;
    Shop.Set.LargeCards[1].CardBack = Folder.WritePicture("rear.bmp", PictureOfPlaces({302, 254}));
    Shop.Set.Characters[1].CardBack = 1;
    const PictureBox& card = Shop.Surfaces.picACard;
    const PictureBox& pieceSurface = Shop.Surfaces.picACardPP;
    const std::tuple<const char*, CompositionFailure (*)(Workshop&, int16), FinalImage, const PictureBox&,
                     Picture>
        rows[] = {{"card", ShowCard, FinalImage::Card, card, Shop.Art.imgCB(1)},
                  {"large card", ShowLargeCard, FinalImage::LargeCard, card, PictureOfPlaces({302, 254})},
                  {"character", ShowCharacter, FinalImage::Character, card, Shop.Art.imgChB(1)},
                  {"piece",
                   ShowCharacter,
                   FinalImage::PlayingPiece,
                   pieceSurface,
                   {}}}; // the back of a piece is its front
    for (const auto& [name, show, image, surface, back] : rows) {
        for (const bool noBack : {false, true}) {
            SCOPED_TRACE(testing::Message() << name << (noBack ? " without back" : ""));
            Header().NoBack = noBack;
            ASSERT_FALSE(show(Shop, 1));
            const Picture front = surface.Image();
            const int w = front.Size().width();
            const bool isDouble = !noBack || back.IsEmpty();
            PictureBox expected(QSize(isDouble ? 2 * w : w, 256));
            if (isDouble)
                expected.PaintPicture(back.IsEmpty() ? front : back, w + 1, 1);
            expected.PaintPicture(front, 1, 1);
            expected.LineBox(0, 0, w - 1, 255);
            expected.LineBox(w, 0, 2 * w - 1, 255);
            EXPECT_EQ(FinalPictureOf(Shop, image).Pixels(), expected.Image().Pixels());
        }
    }
    SaveImage(Shop, TheRun, CardKind::NewBack, 1);
    const QImage back = Folder.Image("Back 1.bmp");
    EXPECT_EQ(back.size(), QSize(152, 256));
    EXPECT_EQ(back.pixel(151, 255), qRgb(0, 0, 0)) << "an outline, and nothing beside it";
    NewCardBack& missing = Shop.Set.NewCardBacks[1];
    missing.Filename.clear();
    missing.UsePicture = true;
    SaveImage(Shop, TheRun, CardKind::NewBack, 1);
    EXPECT_EQ(missing.Filename, "Back 1");
    missing.Filename.clear();
    missing.Picture = Folder.Path("none.bmp");
    SaveImage(Shop, TheRun, CardKind::NewBack, 1);
    EXPECT_TRUE(missing.Filename.isEmpty()) << "no image of what cannot be shown";
    EXPECT_EQ(Folder.Image("Back 1.bmp").size(), back.size());
}

TEST_F(ImageTest, ABatchNamesCardsByTheirTitlesAndRestoresTheCurrentOne)
{
    AddElement<Card>(Shop.Set);
    FirstCard().Title = "Dr. Who";
    Shop.Set.Cards[2].Filename = "kept";
    Header().ReplaceSpace = true;
    CreateImages(Shop, TheRun, CardKind::Standard);
    EXPECT_TRUE(Folder.Has("Dr._Who.bmp") && Folder.Has("kept.bmp"));
    EXPECT_EQ(FirstCard().Filename, "Dr. Who");
    EXPECT_EQ(Shop.Set.Cards.Current, 2);
    EXPECT_EQ(User.BoxTexts(), QStringList{"Create cards|2 cards are created."});
    EXPECT_EQ(User.Pointers, (std::vector<Pointer>{Pointer::Hourglass, Pointer::Default}));
    EXPECT_EQ(User.ProgressSteps, 2);
}

TEST_F(ImageTest, TheDialogSetsFolderAndNameAndTheMessageHasThePathBeforeReplacements)
{
    Header().FilenamePrefix = "set";
    Header().ReplaceSpace = true;
    User.WillChoose(Folder.Path("a.b.jpg"));
    SaveImageAs(Shop, TheRun, CardKind::Standard, 1);
    EXPECT_EQ(FirstCard().Filename, "a");
    EXPECT_TRUE(Folder.Has("set_a.bmp"));
    EXPECT_EQ(User.LastMessageText(),
              "Save card|The card is saved to the filename:\r\n\r\n" + Folder.Path("set a.bmp"));
    const FileDialogRequest& dialog = User.SaveDialogs.at(0);
    EXPECT_EQ(dialog.Title + '|' + dialog.FileName, "Save Card|CARD 1.bmp");
    EXPECT_EQ(dialog.Filter, "All files(*.*)|*.*|Picture (*.bmp)|*.bmp");
    EXPECT_EQ(Header().SaveTo, Folder.WithSeparator());

    // A cancel changes nothing.
    FirstCard().Filename.clear();
    User.Boxes.clear();
    User.WillCancelDialog();
    SaveImageAs(Shop, TheRun, CardKind::Standard, 1);
    EXPECT_EQ(FirstCard().Filename, "");
    EXPECT_TRUE(User.Boxes.empty());
}

TEST_F(ImageTest, AFailureIsReportedByTheWriterAndTheRunContinues)
{
    AddElement<Card>(Shop.Set);
    FirstCard().Title = "../outside";
    for (const char* name : {"CARD 2.bmp", "CARD 2.jpg", "CARD 2.gif"}) {
        CreateImages(Shop, TheRun, CardKind::Standard);
        EXPECT_EQ(User.BoxTexts(), (QStringList{"Saving the card|Something went wrong.",
                                                "Create cards|2 cards are created."}));
        EXPECT_EQ(Folder.Image(name).size(), QSize(304, 256)) << name;
        User.Boxes.clear();
        ++Header().SaveFormat;
    }
    Header().SaveFormat = 2; // GIF, which uses a temporary file
    EXPECT_TRUE(QFile::exists(ProgramFolder() + "qdwtemp.bmp"));
    WriteFinalPicture(Shop, TheRun, FinalImage::Card, {"/proc/none/", "card.gif"});
    EXPECT_EQ(User.LastBox().Text, "Something went wrong.\r\n\r\nPath not found");
    EXPECT_EQ(User.LastBox().Style, BoxStyle::Critical);
}

} // namespace deckforge
