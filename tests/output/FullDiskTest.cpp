// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/HtmlSheets.h"
#include "output/modCapture.h"
#include "platform/Paths.h"
#include "support/Limits.h"
#include "support/WorkshopTest.h"

namespace deckforge {

using FullDiskTest = WorkshopTest;

TEST_F(FullDiskTest, AnUnwritableImageIsReported)
{
    FirstCard().Filename = "card";
    for (int16 format = 0; format < 3; ++format) {
        const QString name = QStringList{"card.bmp", "card.jpg", "card.gif"}[format];
        Header().SaveFormat = format;
        SaveImage(Shop, TheRun, CardKind::Standard, 1);
        ASSERT_TRUE(User.Boxes.empty());
        const QByteArray good = Folder.Read(name);
        for (qsizetype room = 0; room < good.size(); room += 1 + good.size() / 50) {
            {
                const FullDisk full(room);
                SaveImage(Shop, TheRun, CardKind::Standard, 1);
            }
            EXPECT_EQ(User.Boxes.size(), 1U) << name.toStdString() << ' ' << room;
            EXPECT_EQ(User.LastBox().Title, "Saving the card");
            User.Boxes.clear();
        }
        SaveImage(Shop, TheRun, CardKind::Standard, 1);
        EXPECT_EQ(Folder.Read(name), good);
    }
    EXPECT_FALSE(QFile::exists(ProgramFolder() + "qdwtemp.bmp.lock"));

    const FullDisk full(100); // pages and backs are reported as well
    (void)CreateHtml(Shop.Set, TheRun, HtmlPages::Cards);
    EXPECT_TRUE(TheRun.Problems().last().endsWith("New set 1.htm: Disk full"));
    EXPECT_EQ(FailureOf([&] { WriteCardBacks(Shop.Set, Shop.Art, Folder.Path()); }), 61);
}

} // namespace deckforge
