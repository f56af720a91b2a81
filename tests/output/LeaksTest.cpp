#include "compose/SetView.h"
#include "core/modInfo.h"
#include "files/modFile.h"
#include "output/HtmlSheets.h"
#include "output/modCapture.h"
#include "support/Failures.h"
#include "support/PixelText.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <QDir>
#include <malloc.h>

namespace deckforge {

namespace {

struct Resources {
    std::size_t Bytes;
    qsizetype OpenFiles;
};

Resources InUse()
{
    return {::mallinfo2().uordblks,
            QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::AllEntries).size()};
}

/// A set of every kind, of which a picture is damaged and another is missing.
QString WriteSetIn(const TestFolder& folder)
{
    CardSet set;
    InitSet(set);
    AddElement(set, StandardKind);
    AddElement(set, LargeKind);
    AddElement(set, CharacterKind);
    AddElement(set, NewBackKind);
    set.Header.SaveTo = folder.WithSeparator();
    set.Cards[1].Picture = folder.Path(QStringLiteral("picture.bmp"));
    SavePicture(PictureOfPlaces({90, 80}), set.Cards[1].Picture);
    set.Cards[2].Picture = folder.Write(QStringLiteral("damaged.bmp"), "BM");
    set.LargeCards[1].Picture = folder.Path(QStringLiteral("missing.bmp"));
    const QString path = folder.Path(QStringLiteral("set.dkf"));
    ScriptedUser silent;
    EXPECT_TRUE(WriteDKF(set, path, silent, Report::Silent));
    return path;
}

/// Opens the set, steps through it, exports all, saves it, and fails to open and to save others.
void WorkOn(const QString& path, const TestFolder& folder, ScriptedUser& user, Workshop& workshop, int round)
{
    ASSERT_TRUE(ReadDKF(workshop.Set, path, user));
    ShowOpenedSet(workshop);
    workshop.Set.Header.SaveFormat = round == 0 ? int16{2} : static_cast<int16>(round % 2);
    CreateCards(workshop);
    CreateLargeCards(workshop);
    CreateCharacters(workshop);
    SaveNewCardBack(workshop, 1, Ask::No, Tell::No);
    EXPECT_TRUE(CreateHtmlCards(workshop.Set, user));
    EXPECT_TRUE(ExportSetText(workshop.Set, folder.Path(QStringLiteral("set.txt")), user));
    EXPECT_TRUE(WriteDKF(workshop.Set, path, user, Report::Silent));
    EXPECT_FALSE(ReadDKF(workshop.Set, folder.Path(QStringLiteral("damaged.bmp")), user));
    EXPECT_FALSE(WriteDKF(workshop.Set, QStringLiteral("/dev/full"), user, Report::Silent));
    user.Boxes.clear();
    user.Pointers.clear();
}

} // namespace

TEST(Leaks, AHundredRoundsOfWorkLeaveMemoryAndOpenFilesWhereTheyWere)
{
    constexpr int rounds = 100;
    constexpr int warmUp = 12; // fonts, art and pictures are kept from the first rounds on
    const TestFolder folder;
    const QString path = WriteSetIn(folder);
    ScriptedUser user;
    Workshop workshop(user);
    InitForm(workshop);
    Resources before = {};
    for (int round = 0; round < rounds; ++round) {
        if (round == warmUp)
            before = InUse();
        WorkOn(path, folder, user, workshop, round % warmUp);
    }
    const Resources after = InUse();
    EXPECT_EQ(after.OpenFiles, before.OpenFiles);
#ifndef __SANITIZE_ADDRESS__ // which has its own allocator and finds leaks at the end
    constexpr std::size_t tolerance = 64 << 10;
    EXPECT_LT(after.Bytes, before.Bytes + tolerance);
#endif
}

} // namespace deckforge
