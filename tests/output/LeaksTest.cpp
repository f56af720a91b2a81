#include "commands/SetCommands.h"
#include "output/HtmlSheets.h"
#include "output/modCapture.h"
#include "support/EveryKind.h"
#include "support/WorkshopTest.h"

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
    return {::mallinfo2().uordblks, QDir("/proc/self/fd").entryList(QDir::System | QDir::AllEntries).size()};
}

} // namespace

class Leaks : public WorkshopTest {
protected:
    /// Writes a set of every kind, of which a picture is damaged and another is missing.
    Leaks()
    {
        AddElement<Card>(Shop.Set);
        AddOneOfEachKind(Shop.Set);
        FirstCard().Picture = Folder.WritePicture("picture.bmp");
        Shop.Set.Cards[2].Picture = Folder.Write("damaged.bmp", "BM");
        Shop.Set.LargeCards[1].Picture = Folder.Path("missing.bmp");
        EXPECT_TRUE(WriteSet(Shop.Set, Path, User));
    }

    /// Opens the set, steps through it, exports all, saves it, and fails to open and to save others.
    void Work(int round)
    {
        ASSERT_TRUE(OpenSet(Shop.Set, Path, User));
        (void)ShowOpenedSet(Shop);
        Header().SaveFormat = round == 0 ? int16{2} : static_cast<int16>(round % 2);
        CreateImages(Shop, TheRun, CardKind::Standard);
        CreateImages(Shop, TheRun, CardKind::Large);
        CreateImages(Shop, TheRun, CardKind::Character);
        SaveImage(Shop, TheRun, CardKind::NewBack, 1);
        EXPECT_TRUE(CreateHtml(Shop.Set, TheRun, HtmlPages::Cards));
        EXPECT_TRUE(WriteListing(Shop.Set, Folder.Path("set.txt"), User));
        EXPECT_TRUE(WriteSet(Shop.Set, Path, User));
        EXPECT_FALSE(OpenSet(Shop.Set, Folder.Path("damaged.bmp"), User));
        EXPECT_FALSE(WriteSet(Shop.Set, "/dev/full", User));
        User.Boxes.clear();
        User.Pointers.clear();
    }

    const QString Path = Folder.Path("set.dkf");
};

TEST_F(Leaks, AHundredRoundsOfWorkLeaveMemoryAndOpenFilesWhereTheyWere)
{
    constexpr int rounds = 100;
    constexpr int warmUp = 12; // fonts, art and pictures are kept from the first rounds on
    Resources before = {};
    for (int round = 0; round < rounds; ++round) {
        if (round == warmUp)
            before = InUse();
        Work(round % warmUp);
    }
    const Resources after = InUse();
    EXPECT_EQ(after.OpenFiles, before.OpenFiles);
#ifndef __SANITIZE_ADDRESS__ // which has its own allocator and finds leaks at the end
    constexpr std::size_t tolerance = 64 << 10;
    EXPECT_LT(after.Bytes, before.Bytes + tolerance);
#endif
}

} // namespace deckforge
