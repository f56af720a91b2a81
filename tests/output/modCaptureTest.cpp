#include "output/modCapture.h"
#include "compose/SetView.h"
#include "core/modInfo.h"
#include "output/ImageWriters.h"
#include "platform/Paths.h"
#include "support/Failures.h"
#include "support/PixelText.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <QFile>

namespace deckforge {

namespace {

class ImageTest : public testing::Test {
protected:
    ImageTest() : Shop(User)
    {
        InitForm(Shop);
        Header().SaveTo = Folder.WithSeparator();
    }

    SetHeader& Header() { return Shop.Set.Header; }
    Card& Subject() { return Shop.Set.Cards[1]; }
    QImage Image(const char* name) { return QImage(Folder.Path(QString::fromLatin1(name))); }

    TestFolder Folder;
    ScriptedUser User;
    Workshop Shop;
};

} // namespace

TEST(ImageNames, FollowPrefixNumberAndKind)
{
    struct Case {
        const char* Prefix;
        bool FileNr;
        const char* Kind;
        int Index, Count;
        const char* Expected;
    };
    for (const Case& c : {
             Case{"set", false, "", 7, 120, "set Sword.jpg"},
             Case{"set", true, "", 7, 120, "set 007 Sword.jpg"},
             Case{"", false, "", 7, 120, "Sword.jpg"},
             Case{"", true, "", 7, 120, "007 Sword.jpg"},
             Case{"set", true, "", 7, 9, "set 7 Sword.jpg"},
             Case{"set", true, "", 12, 1500, "set 0012 Sword.jpg"},
             Case{"set", true, "Large ", 7, 120, "Large set 007 Sword.jpg"},
             Case{"", false, "Large ", 7, 120, "Large  Sword.jpg"},
         }) {
        SetHeader header;
        header.FilenamePrefix = QString::fromLatin1(c.Prefix);
        header.FileNr = c.FileNr;
        header.SaveFormat = 1;
        EXPECT_EQ(ImageName(header, QString::fromLatin1(c.Kind), QStringLiteral("Sword"), c.Index, c.Count),
                  QString::fromLatin1(c.Expected));
    }
}

TEST(ImageNames, LoseBlanksAtTheirEndsAndNoOtherCharacter)
{
    SetHeader header;
    EXPECT_EQ(ImageName(header, QString(), QStringLiteral("  \u00A0Sword"), 1, 1),
              QStringLiteral("\u00A0Sword.bmp"));
}

TEST(ImageNames, UnderlinesReplaceBlanksInTheNameAlone)
{
    SetHeader header;
    const FilePath path = {QStringLiteral("/my cards/"), QStringLiteral("set 7 Sword.bmp")};
    EXPECT_EQ(PathToWrite(header, path), QStringLiteral("/my cards/set 7 Sword.bmp"));
    header.ReplaceSpace = true;
    EXPECT_EQ(PathToWrite(header, path), QStringLiteral("/my cards/set_7_Sword.bmp"));
    EXPECT_EQ(FixFileName(header, QStringLiteral("a b")), QStringLiteral("a_b"));
    for (const char* name : {"../a.bmp", "a\\b.bmp"}) {
        const FilePath outside = {QStringLiteral("/out/"), QString::fromLatin1(name)};
        EXPECT_EQ(FailureOf([&] { (void)PathToWrite(header, outside); }), 52);
    }
}

TEST(ImageNames, SheetsAreNumberedByTheCardsAndNamedByPrefixOrSet)
{
    SetHeader header;
    header.SetName = QStringLiteral("Sea");
    EXPECT_EQ(SheetName(header, QStringLiteral(" Sheet "), 2, 59, 6), QStringLiteral("Sea Sheet 02.bmp"));
    header.FilenamePrefix = QStringLiteral("s");
    EXPECT_EQ(SheetName(header, QStringLiteral(" Sheet Large "), 2, 53, 6),
              QStringLiteral("s Sheet Large 2.bmp"));
}

TEST_F(ImageTest, ACardAndItsBackStandSideBySideInTheirOutlines)
{
    Subject().Color = 0x0000FF;
    CreateCards(Shop);
    const QImage image = Image("CARD 1.bmp");
    ASSERT_EQ(image.size(), QSize(304, 256));
    for (const int x : {0, 151, 152, 303})
        EXPECT_EQ(image.pixel(x, 100), qRgb(0, 0, 0)) << x;
    for (const int y : {0, 255})
        EXPECT_EQ(image.pixel(200, y), qRgb(0, 0, 0)) << y;
    EXPECT_EQ(image.pixel(1, 1), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(150, 254), qRgb(255, 0, 0));
    const QImage back = Shop.Art.imgCB(0).Pixels();
    EXPECT_EQ(image.copy(153, 1, 150, 254).convertToFormat(back.format()), back);

    Header().NoBack = true;
    CreateCards(Shop);
    EXPECT_EQ(Image("CARD 1.bmp").size(), QSize(152, 256));
    EXPECT_EQ(User.LastBox().Title, QStringLiteral("Create cards"));
    EXPECT_EQ(User.LastBox().Text, QStringLiteral("1 card is created."));
}

TEST_F(ImageTest, ABatchNamesCardsByTheirTitlesAndComesBackToTheCurrentOne)
{
    AddElement(Shop.Set, StandardKind);
    Shop.Set.Cards[1].Title = QStringLiteral("Dr. Who");
    Shop.Set.Cards[2].Filename = QStringLiteral("kept");
    Header().ReplaceSpace = true;
    CreateCards(Shop);
    EXPECT_TRUE(Folder.Has(QStringLiteral("Dr._Who.bmp")));
    EXPECT_TRUE(Folder.Has(QStringLiteral("kept.bmp")));
    EXPECT_EQ(Shop.Set.Cards[1].Filename, QStringLiteral("Dr. Who"));
    EXPECT_EQ(Shop.Set.CurrentCard, 2);
    EXPECT_EQ(User.BoxTexts(), std::vector<QString>{QStringLiteral("Create cards|2 cards are created.")});
    EXPECT_EQ(User.Pointers, (std::vector<Pointer>{Pointer::Hourglass, Pointer::Default}));
    EXPECT_EQ(User.ProgressSteps, 2);
}

TEST_F(ImageTest, TheDialogGivesFolderAndNameAndTheBoxTellsThePathBeforeReplacements)
{
    Header().FilenamePrefix = QStringLiteral("set");
    Header().ReplaceSpace = true;
    User.WillChoose(Folder.Path(QStringLiteral("a.b.jpg")));
    SaveCard(Shop, 1, Ask::Yes, Tell::Yes);
    EXPECT_EQ(Subject().Filename, QStringLiteral("a"));
    EXPECT_TRUE(Folder.Has(QStringLiteral("set_a.bmp")));
    EXPECT_EQ(User.LastBox().Text, QStringLiteral("The card is saved to the filename:\r\n\r\n") +
                                       Folder.Path(QStringLiteral("set a.bmp")));
    EXPECT_EQ(User.LastBox().Title, QStringLiteral("Save card"));
    ASSERT_EQ(User.SaveDialogs.size(), 1U);
    EXPECT_EQ(User.SaveDialogs[0].Title, QStringLiteral("Save Card"));
    EXPECT_EQ(User.SaveDialogs[0].FileName, QStringLiteral("CARD 1.bmp"));
    EXPECT_EQ(User.SaveDialogs[0].Filter, QStringLiteral("All files(*.*)|*.*|Picture (*.bmp)|*.bmp"));
    EXPECT_EQ(Header().SaveTo, Folder.WithSeparator());
}

TEST_F(ImageTest, WhoIsToldIsAskedForAMissingNameAndACancelChangesNothing)
{
    User.WillCancelDialog();
    SaveCard(Shop, 1, Ask::No, Tell::Yes);
    EXPECT_EQ(Subject().Filename, QString());
    EXPECT_TRUE(User.Boxes.empty());
    Subject().Filename = QStringLiteral("named");
    SaveCard(Shop, 1, Ask::No, Tell::Yes);
    EXPECT_TRUE(Folder.Has(QStringLiteral("named.bmp")));
}

TEST_F(ImageTest, AFailureIsToldByTheWriterAndTheRunGoesOn)
{
    AddElement(Shop.Set, StandardKind);
    Subject().Title = QStringLiteral("../outside");
    for (const int16 format : {int16{0}, int16{1}, int16{2}}) {
        Header().SaveFormat = format;
        CreateCards(Shop);
        EXPECT_EQ(User.Boxes[User.Boxes.size() - 2].Text, QStringLiteral("Something went wrong."));
        EXPECT_EQ(User.Boxes[User.Boxes.size() - 2].Title, QStringLiteral("Saving the card"));
        EXPECT_EQ(User.LastBox().Text, QStringLiteral("2 cards are created."));
    }
    for (const char* name : {"CARD 2.bmp", "CARD 2.jpg", "CARD 2.gif"})
        EXPECT_EQ(Image(name).size(), QSize(304, 256)) << name;
    Header().SaveFormat = 9;
    Shop.Set.Cards[1].Filename = QStringLiteral("unknown");
    SaveCard(Shop, 1, Ask::No, Tell::No);
    EXPECT_FALSE(Folder.Has(QStringLiteral("unknown.")));
}

TEST_F(ImageTest, ABackThatCannotBeShownKeepsItsNameAndItsOlderImage)
{
    AddElement(Shop.Set, NewBackKind);
    NewCardBack& back = Shop.Set.NewCardBacks[1];
    User.WillCancelDialog();
    SaveNewCardBack(Shop, 1, Ask::No, Tell::Yes);
    EXPECT_TRUE(User.Boxes.empty()) << "whoever is told is asked for a name, and cancelled";
    SaveNewCardBack(Shop, 1, Ask::No, Tell::No);
    EXPECT_EQ(Image("Back 1.bmp").size(), QSize(152, 256));
    back.Filename.clear();
    back.UsePicture = true;
    back.Picture = Folder.Path(QStringLiteral("none.bmp"));
    SaveNewCardBack(Shop, 1, Ask::No, Tell::No);
    EXPECT_TRUE(back.Filename.isEmpty());
    EXPECT_TRUE(User.Boxes.empty());
}

TEST_F(ImageTest, AGifGoesByATemporaryFileAndItsFailureIsTold)
{
    Header().SaveFormat = 2;
    WriteCard(Shop, {Folder.WithSeparator(), QStringLiteral("card.gif")});
    EXPECT_EQ(Image("card.gif").size(), QSize(304, 256));
    EXPECT_TRUE(QFile::exists(ProgramFolder() + QStringLiteral("qdwtemp.bmp")));
    WriteCard(Shop, {Folder.Path(QStringLiteral("none/")), QStringLiteral("card.gif")});
    EXPECT_EQ(User.LastBox().Text, QStringLiteral("Something went wrong.\r\n\r\nPath not found"));
    EXPECT_EQ(User.LastBox().Style, BoxStyle::Critical);
}

} // namespace deckforge
