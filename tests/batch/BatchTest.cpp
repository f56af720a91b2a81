#include "support/Failures.h"
#include "support/Limits.h"
#include "support/TestFolder.h"

#include <QImage>
#include <QProcess>
#include <csignal>

namespace deckforge {

namespace {

struct Outcome {
    int Status;
    QString Output;
    QString Error;
};

/// The built program in a process of its own; blanks part the arguments.
Outcome Batch(const QString& commandLine, const QString& standardOutput = {})
{
    QProcess process;
    process.setStandardOutputFile(standardOutput);
    process.start(QStringLiteral(DECKFORGE_BATCH), commandLine.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    EXPECT_TRUE(process.waitForFinished()) << "it hangs or does not start";
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

/// The same on a set, with a folder for what it makes.
Outcome Batch(const char* commandLine, const QString& set, const QString& folder = {},
              const QString& standardOutput = {})
{
    return Batch(QString::fromLatin1(commandLine)
                     .replace(QLatin1String("SET"), set)
                     .replace(QLatin1String("DIR"), folder),
                 standardOutput);
}

} // namespace

TEST(Batch, MakesConvertsAndDrawsASet)
{
    const TestFolder folder;
    const QString set = folder.Path(QStringLiteral("a.dkf"));
    Outcome run = Batch("new SET", set);
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Error, QStringLiteral("Save file: The card set is saved.\n"));

    EXPECT_EQ(Batch("convert SET DIR/b.dkf", set, folder.Path()).Status, 0);
    EXPECT_EQ(folder.Read(QStringLiteral("b.dkf")),
              folder.Read(QStringLiteral("a.dkf")).replace("/a.dkf", "/b.dkf"));

    const QString images = folder.Path(QStringLiteral("made/images"));
    run = Batch("images SET --to DIR --format jpg --scale 2 --save", set, images);
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(QImage(images + QStringLiteral("/CARD 1.jpg")).size(), QSize(608, 512));
    EXPECT_TRUE(folder.Read(QStringLiteral("a.dkf")).contains("\r\nCARD 1\r\n 0 \r\n"))
        << "the name is saved";
    EXPECT_FALSE(folder.Read(QStringLiteral("a.dkf")).contains("made/images"))
        << "the folder is for this run only";
}

TEST(Batch, WritesEveryOutputOfASet)
{
    const TestFolder folder;
    const QString set = folder.Path(QStringLiteral("a.dkf"));
    Batch("new SET", set);
    EXPECT_EQ(Batch("html SET --to DIR/out", set, folder.Path()).Status, 1) << "no file names yet";
    for (const char* command :
         {"images SET --to DIR/out --save", "html SET --to DIR/out", "text SET DIR/a.txt", "backs DIR/out",
          "sheets SET --kind card --columns 2 --rows 1 --to DIR/out"})
        EXPECT_EQ(Batch(command, set, folder.Path()).Status, 0) << command;
    for (const char* name : {"out/CARD 1.bmp", "out/New set 1.htm", "out/New set Sheet 1.bmp", "a.txt",
                             "out/Warlock's Maze.bmp", "out/character back 2.bmp"})
        EXPECT_TRUE(folder.Has(QString::fromLatin1(name))) << name;
    EXPECT_FALSE(folder.Has(QStringLiteral("out/Blank.bmp")));
    EXPECT_TRUE(
        Batch("statistics SET", set)
            .Output.startsWith(QStringLiteral("Number of cards used/type:\n1 - ENEMY- Animal (100%)\n")));
}

TEST(Batch, PrintsOnePageOfAnyKind)
{
    const TestFolder folder;
    const QString set = folder.Path(QStringLiteral("a.dkf"));
    Batch("new SET", set);
    EXPECT_EQ(Batch("print SET DIR/a.pdf --kind card --index 1", set, folder.Path()).Status, 0);
    const QByteArray page = folder.Read(QStringLiteral("a.pdf"));
    EXPECT_TRUE(page.startsWith("%PDF") && page.contains("/Count 1\n")) << page.left(100).toStdString();
    const Outcome run = Batch("print SET DIR/b.pdf --kind character --index 1", set, folder.Path());
    EXPECT_EQ(run.Status, 1) << "there is none";
    EXPECT_FALSE(folder.Has(QStringLiteral("b.pdf")));
    EXPECT_EQ(Batch("print SET DIR/no/a.pdf --kind card --index 1", set, folder.Path()).Status, 1);
}

TEST(Batch, TellsAFailureInItsStatus)
{
    const TestFolder folder;
    Outcome run = Batch("images SET", folder.Path(QStringLiteral("none.dkf")));
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Error,
              QStringLiteral("Error: Error while opening the Varnhelm Card Set.\n\n53, File not found\n"));

    const QString set = folder.Path(QStringLiteral("a.dkf"));
    Batch("new SET", set);
    folder.Write(QStringLiteral("file"), "in the way of the folder");
    run = Batch("images SET --to DIR/file", set, folder.Path());
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Error.contains(QStringLiteral("Saving the card: Something went wrong.\n")));
    {
        const FullDisk full(100);
        ::signal(SIGXFSZ, SIG_DFL); // as a session starts its programs
        run = Batch("convert SET DIR/b.dkf", set, folder.Path());
    }
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Error.endsWith(QStringLiteral("61, Disk full\n"))) << run.Error.toStdString();
    EXPECT_EQ(Batch("statistics SET", set, {}, QStringLiteral("/dev/full")).Status, 1);
}

TEST(Batch, RefusesAWrongCommandLineAndShowsItsUse)
{
    for (const char* wrong : {"", "paint a.dkf", "new", "new a.dkf a.dkf", "convert a.dkf",
                              "new a.dkf --save", "images a.dkf --scale 0", "images a.dkf --format png",
                              "images a.dkf --kind box", "images a.dkf --colour", "sheets a.dkf --columns 2",
                              "sheets a.dkf --kind card --columns 7 --rows 1", "html a.dkf --kind back",
                              "print a.dkf a.pdf --kind card", "print a.dkf a.pdf --index 1",
                              "print a.dkf a.pdf --kind card --index 1 --resolution 71"}) {
        const Outcome run = Batch(QString::fromLatin1(wrong));
        EXPECT_EQ(run.Status, 2) << wrong;
        EXPECT_TRUE(run.Error.contains(QStringLiteral("Usage:"))) << wrong;
    }
    EXPECT_EQ(Batch(QStringLiteral("--version")).Output, QStringLiteral("Varnhelm Deck Forge 1.7.4\n"));
    EXPECT_TRUE(Batch(QStringLiteral("--help")).Output.startsWith(QStringLiteral("Usage:")));
}

} // namespace deckforge
