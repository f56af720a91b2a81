#include "platform/Files.h"
#include "platform/Paths.h"
#include "support/Failures.h"
#include "support/TestFolder.h"

#include <QDir>
#include <sys/stat.h>

namespace deckforge {

TEST(Files, FailuresAreToldByWhatIsWrongWithThePath)
{
    constexpr qint64 plenty = 1000;
    const TestFolder folder;
    folder.Write(QStringLiteral("file"), "text");
    ASSERT_EQ(::mkfifo(folder.Path(QStringLiteral("fifo")).toUtf8().constData(), 0600), 0);
    const auto reading = [&](const QString& path) {
        return FailureOf([&] { (void)ReadWholeFile(path, plenty); });
    };
    const auto writing = [&](const QString& path) { return FailureOf([&] { OutputFile file(path); }); };

    EXPECT_EQ(reading(folder.Path(QStringLiteral("file"))), 0);
    EXPECT_EQ(reading(folder.Path(QStringLiteral("none"))), 53);
    EXPECT_EQ(reading(folder.Path(QStringLiteral("none/file"))), 76);
    EXPECT_EQ(reading(folder.Path(QStringLiteral("file/file"))), 76);
    EXPECT_EQ(reading(folder.Path()), 75);
    EXPECT_EQ(reading(folder.Path(QStringLiteral("fifo"))), 75);
    EXPECT_EQ(reading(QStringLiteral("/dev/zero")), 75);
    EXPECT_EQ(reading(QString()), 52);
    EXPECT_EQ(reading(folder.Path(QString(300, QLatin1Char('x')))), 52);
    EXPECT_EQ(FailureOf([&] { (void)ReadWholeFile(folder.Path(QStringLiteral("file")), 3); }), 7);

    EXPECT_EQ(writing(folder.Path(QStringLiteral("none/file"))), 76);
    EXPECT_EQ(writing(folder.Path()), 75);
    EXPECT_EQ(writing(folder.Path(QStringLiteral("fifo"))), 75);
    EXPECT_EQ(FailureOf([] { OutputFile(QStringLiteral("/dev/full")).Write("x"); }), 61);
}

TEST(Files, BothSeparatorsOpenAFile)
{
    const TestFolder folder;
    QDir(folder.Path()).mkdir(QStringLiteral("pictures"));
    folder.Write(QStringLiteral("pictures/a"), "text");
    EXPECT_EQ(ReadWholeFile(folder.Path(QStringLiteral("pictures\\a")), 10), "text");
    {
        OutputFile file(folder.Path(QStringLiteral("pictures\\b")));
    }
    EXPECT_TRUE(folder.Has(QStringLiteral("pictures/b")));
}

TEST(Paths, AreTakenApartAtTheLastSeparatorOfEitherKind)
{
    EXPECT_EQ(NamePart(QStringLiteral("C:\\cards\\troll.bmp")), QStringLiteral("troll.bmp"));
    EXPECT_EQ(FolderPart(QStringLiteral("C:\\cards/troll.bmp")), QStringLiteral("C:\\cards/"));
    EXPECT_EQ(NamePart(QStringLiteral("troll.bmp")), QStringLiteral("troll.bmp"));
    EXPECT_EQ(FolderPart(QStringLiteral("troll.bmp")), QString());
    EXPECT_EQ(WithSeparator(QStringLiteral("C:\\cards\\")), QStringLiteral("C:\\cards\\"));
    EXPECT_EQ(WithSeparator(QStringLiteral("/home/cards")), QStringLiteral("/home/cards/"));
}

TEST(Paths, TheProgramFolderIsMadeAndEndsInASeparator)
{
    EXPECT_TRUE(QDir(ProgramFolder()).exists());
    EXPECT_TRUE(ProgramFolder().endsWith(QStringLiteral("/Varnhelm Deck Forge/")));
}

} // namespace deckforge
