// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/Paths.h"
#include "support/TestFolder.h"

#include <QDir>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace deckforge {

TEST(Files, ErrorsDependOnThePath)
{
    constexpr qint64 plenty = 1000;
    const TestFolder folder;
    folder.Write("file", "text");
    ASSERT_EQ(::mkfifo(folder.Path("fifo").toUtf8().constData(), 0600), 0);
    const QString longName(300, 'x');
    const std::pair<QString, int> rows[] = {{folder.Path("file"), 0},
                                            {folder.Path("none"), 53},
                                            {folder.Path("none/file"), 76},
                                            {folder.Path("file/file"), 76},
                                            {folder.Path(), 75},
                                            {folder.Path("fifo"), 75},
                                            {"/dev/zero", 75},
                                            {"", 52},
                                            {folder.Path(longName), 52}};
    for (const auto& [path, failure] : rows)
        EXPECT_EQ(FailureOf([&] { (void)ReadWholeFile(path, plenty); }), failure) << path.toStdString();
    EXPECT_EQ(FailureOf([&] { (void)ReadWholeFile(folder.Path("file"), 3); }), 7);

    EXPECT_EQ(FailureOf([] { OutputFile("/dev/full").Write("x"); }), 61);
}

TEST(Files, APipeWithASlowReaderGetsAllBytes)
{
    const TestFolder folder;
    const QByteArray fifo = folder.Path("fifo").toUtf8();
    ASSERT_EQ(::mkfifo(fifo.constData(), 0600), 0);
    const int reader = ::open(fifo.constData(), O_RDONLY | O_NONBLOCK);
    const QByteArray text(1 << 20, 'x'); // exceeds the capacity of a pipe
    OutputFile file(folder.Path("fifo"));
    qsizetype got = 0;
    std::thread reading([&] {
        QByteArray piece(4096, Qt::Uninitialized);
        for (ssize_t size = -1; size != 0 && got < text.size();) { // -1: no data yet
            size = ::read(reader, piece.data(), static_cast<size_t>(piece.size()));
            got += std::max<ssize_t>(size, 0);
        }
    });
    EXPECT_EQ(FailureOf([&] {
                  file.Write(text);
                  file.Close();
              }),
              0);
    reading.join();
    EXPECT_EQ(got, text.size());
    ::close(reader);
}

TEST(Files, BothSeparatorsOpenAFile)
{
    const TestFolder folder;
    QDir(folder.Path()).mkdir("pictures");
    folder.Write("pictures/a", "text");
    EXPECT_EQ(ReadWholeFile(folder.Path("pictures\\a"), 10), "text");
    {
        OutputFile file(folder.Path("pictures\\b"));
    }
    EXPECT_TRUE(folder.Has("pictures/b"));
}

TEST(Paths, AreSplitAtTheLastSeparatorAndFoldersEndInOne)
{
    EXPECT_EQ(NamePart("C:\\cards\\troll.bmp"), "troll.bmp");
    EXPECT_EQ(FolderPart("C:\\cards/troll.bmp"), "C:\\cards/");
    EXPECT_EQ(NamePart("troll.bmp"), "troll.bmp");
    EXPECT_EQ(FolderPart("troll.bmp"), QString());
    EXPECT_EQ(WithSeparator("C:\\cards\\"), "C:\\cards\\");
    EXPECT_EQ(WithSeparator("/home/cards"), "/home/cards/");
    EXPECT_TRUE(QDir(ProgramFolder()).exists());
    EXPECT_TRUE(ProgramFolder().endsWith("/Varnhelm Deck Forge/"));
}

} // namespace deckforge
