#include "compose/SetView.h"
#include "output/HtmlSheets.h"
#include "output/modCapture.h"
#include "platform/Paths.h"
#include "support/Failures.h"
#include "support/Limits.h"
#include "support/ScriptedUser.h"
#include "support/TestFolder.h"

#include <QDir>

namespace deckforge {

namespace {

class FullDiskTest : public testing::Test {
protected:
    FullDiskTest()
    {
        InitForm(Shop);
        Shop.Set.Header.SaveTo = Folder.WithSeparator();
        Shop.Set.Cards[1].Filename = QStringLiteral("card");
    }

    TestFolder Folder;
    ScriptedUser User;
    Workshop Shop{User};
};

} // namespace

TEST_F(FullDiskTest, AnImageThatCouldNotBeWrittenIsToldWhateverIsLeftOfTheOlderOne)
{
    const char* const extensions[] = {"bmp", "jpg", "gif"};
    for (int16 format = 0; format < 3; ++format) {
        const QString name = QStringLiteral("card.") + QLatin1String(extensions[format]);
        Shop.Set.Header.SaveFormat = format;
        SaveCard(Shop, 1, Ask::No, Tell::No);
        ASSERT_TRUE(User.Boxes.empty());
        const QByteArray good = Folder.Read(name);
        for (qsizetype room = 0; room < good.size(); room += 1 + good.size() / 50) {
            {
                const FullDisk full(room);
                SaveCard(Shop, 1, Ask::No, Tell::No);
            }
            EXPECT_EQ(User.Boxes.size(), 1U) << name.toStdString() << ' ' << room;
            EXPECT_EQ(User.LastBox().Title, QStringLiteral("Saving the card"));
            User.Boxes.clear();
        }
        SaveCard(Shop, 1, Ask::No, Tell::No);
        EXPECT_EQ(Folder.Read(name), good);
    }
    EXPECT_FALSE(QFile::exists(ProgramFolder() + QStringLiteral("qdwtemp.bmp.lock")));
}

TEST_F(FullDiskTest, PagesAndBacksAreToldAsWell)
{
    const FullDisk full(100);
    EXPECT_FALSE(CreateHtmlCards(Shop.Set, User));
    EXPECT_FALSE(User.Boxes.empty());
    EXPECT_EQ(FailureOf([&] { WriteCardBacks(Shop, Folder.Path()); }), 61);
}

} // namespace deckforge
