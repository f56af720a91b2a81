// SPDX-License-Identifier: GPL-3.0-or-later

#include "BuildPaths.h"
#include "support/FileBytes.h"
#include "support/Limits.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QMap>
#include <QProcess>
#include <csignal>

namespace deckforge {

/// Runs the batch program in a separate process. In command lines, "SET" is a set that was created before,
/// and "DIR" its folder.
class Batch : public testing::Test {
protected:
    /// Its exit status and output; arguments are separated by spaces.
    int Run(QString commandLine, const QString& standardOutput = {})
    {
        commandLine.replace("SET", Folder.Path("a.dkf")).replace("DIR", Folder.Path());
        QProcess process;
        process.setStandardOutputFile(standardOutput);
        process.start(DECKFORGE_BATCH, commandLine.split(' ', Qt::SkipEmptyParts));
        EXPECT_TRUE(process.waitForFinished()) << "it hangs or does not start";
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        Output = process.readAllStandardOutput();
        Error = process.readAllStandardError();
        return process.exitCode();
    }
    Batch()
    {
        EXPECT_EQ(Run("new SET"), 0);
        EXPECT_EQ(Error, "Save file: The card set is saved.\n");
    }

    TestFolder Folder;
    QString Output;
    QString Error;
};

TEST_F(Batch, ConvertsAndDrawsASet)
{
    EXPECT_EQ(Run("convert SET DIR/b.dkf"), 0);
    EXPECT_EQ(Folder.Read("b.dkf"), Folder.Read("a.dkf").replace("/a.dkf", "/b.dkf"));
    EXPECT_EQ(Run("images SET --to DIR/made/images --format jpg --scale 2 --save"), 0) << Error.toStdString();
    EXPECT_EQ(Folder.Image("made/images/CARD 1.jpg").size(), QSize(608, 512));
    EXPECT_EQ(CoarsestJpegStep(Folder.Read("made/images/CARD 1.jpg"), 0), 24) << "quality 90";
    EXPECT_TRUE(Folder.Read("a.dkf").contains("\r\nCARD 1\r\n 0 \r\n")) << "the name is saved";
    EXPECT_FALSE(Folder.Read("a.dkf").contains("made/images")) << "the folder is for this run only";
}

TEST_F(Batch, WritesEveryOutputOfASet)
{
    EXPECT_EQ(Run("html SET --to DIR/out"), 1) << "no file names yet";
    for (const char* command :
         {"images SET --to DIR/out --save", "html SET --to DIR/out", "text SET DIR/a.txt", "backs DIR/out",
          "sheets SET --kind card --columns 2 --rows 1 --to DIR/out"})
        EXPECT_EQ(Run(command), 0) << command;
    for (const char* name : {"out/CARD 1.bmp", "out/New set 1.htm", "out/New set Sheet 1.bmp", "a.txt",
                             "out/Warlock's Maze.bmp", "out/character back 2.bmp"})
        EXPECT_TRUE(Folder.Has(name)) << name;
    EXPECT_FALSE(Folder.Has("out/Blank.bmp"));
    Run("statistics SET");
    EXPECT_TRUE(Output.startsWith("Number of cards used/type:\n1 - ENEMY- Animal (100%)\n"));
}

TEST_F(Batch, TheSameInputGivesTheSameBytes)
{
    const auto run = [&](const char* usedMemory) {
        qputenv("MALLOC_PERTURB_", usedMemory);
        for (const char* command :
             {"backs DIR/out", "images SET --to DIR/out --format bmp", "images SET --to DIR/out --format jpg",
              "images SET --to DIR/out --format gif",
              "sheets SET --kind card --columns 2 --rows 1 --to DIR/out --format bmp"})
            EXPECT_EQ(Run(command), 0) << command;
        qunsetenv("MALLOC_PERTURB_");
        QMap<QString, QByteArray> files;
        for (const QString& name : QDir(Folder.Path("out")).entryList(QDir::Files))
            files[name] = Folder.Read("out/" + name);
        QDir(Folder.Path("out")).removeRecursively();
        return files;
    };
    const auto first = run("1");
    const auto second = run("170");
    EXPECT_GT(first.size(), 25);
    ASSERT_EQ(first.keys(), second.keys());
    for (const QString& name : first.keys())
        EXPECT_TRUE(first[name] == second[name]) << name.toStdString();
}

TEST_F(Batch, PrintsOnePageOfAnyKind)
{
    EXPECT_EQ(Run("print SET DIR/a.pdf --kind card --index 1"), 0);
    EXPECT_TRUE(Folder.Read("a.pdf").contains("/Count 1\n"));
    EXPECT_EQ(Run("print SET DIR/b.pdf --kind character --index 1"), 1) << "there is none";
    EXPECT_FALSE(Folder.Has("b.pdf"));
}

TEST_F(Batch, ReportsAFailureByItsExitStatus)
{
    EXPECT_EQ(Run("images DIR/none.dkf"), 1);
    EXPECT_EQ(Error, "Error: Error while opening the Varnhelm Card Set.\n\n53, File not found\n" +
                         Folder.Path("none.dkf") + ": File not found\n");
    const QByteArray set = Folder.Read("a.dkf");
    Folder.Write("wrong.dkf", QByteArray(set).replace("\r\nTrue\r\n", "\r\nperhaps\r\n"));
    EXPECT_EQ(Run("convert DIR/wrong.dkf DIR/b.dkf"), 1);
    EXPECT_TRUE(Error.endsWith(Folder.Path("wrong.dkf:17: Type mismatch\n"))) << Error.toStdString();
    Folder.Write("none", set.mid(1));
    EXPECT_EQ(Run("convert DIR/none DIR/b.dkf"), 1);
    EXPECT_TRUE(Error.endsWith(Folder.Path("none: Not a card set of this version\n")));
    Folder.Write("file", "in the way of the folder");
    EXPECT_EQ(Run("images SET --to DIR/file"), 1);
    EXPECT_TRUE(Error.contains("Saving the card: Something went wrong.\n"));
    {
        const FullDisk full(100);
        ::signal(SIGXFSZ, SIG_DFL); // the default for programs of a session
        EXPECT_EQ(Run("convert SET DIR/b.dkf"), 1);
    }
    EXPECT_TRUE(Error.contains("61, Disk full\n")) << Error.toStdString();
    EXPECT_EQ(Run("statistics SET", "/dev/full"), 1);
}

TEST_F(Batch, ReportsANecessaryMissingPictureByItsExitStatus)
{
    const QString symbol = Folder.Path("symbol.bmp");
    QByteArray set = Folder.Read("a.dkf");
    const QByteArray folder = set.split('\n')[5];
    Folder.Write("a.dkf",
                 set.replace(folder + "\nFalse\r\n\r\n", folder + "\nFalse\r\n" + symbol.toUtf8() + "\r\n"));
    for (const char* command : {"images SET --to DIR/out", "print SET DIR/a.pdf --kind card --index 1"}) {
        EXPECT_EQ(Run(command), 1) << command;
        EXPECT_EQ(Error.count("set \"New set\": " + symbol + ": File not found\n"), 1) << Error.toStdString();
    }
    for (const char* command : {"text SET DIR/a.txt", "statistics SET", "convert SET DIR/b.dkf"})
        EXPECT_EQ(Run(command), 0) << Error.toStdString();
}

TEST_F(Batch, NeverOverwritesTheSet)
{
    const QByteArray set = Folder.Read("a.dkf");
    ASSERT_TRUE(QFile::link(Folder.Path("a.dkf"), Folder.Path("link")));
    for (const char* command : {"new SET", "text SET SET", "text SET DIR/link", "text DIR/link SET",
                                "print SET DIR/link --kind card --index 1"}) {
        EXPECT_EQ(Run(command), 2) << command;
        EXPECT_TRUE(Error.startsWith('"' + Folder.Path())) << Error.toStdString();
    }
    EXPECT_EQ(Folder.Read("a.dkf"), set);
    EXPECT_EQ(Run("convert SET SET"), 0) << "saves it";
}

TEST_F(Batch, RejectsAWrongCommandLineAndShowsItsUsage)
{
    for (const char* wrong : {"", "paint a.dkf", "new", "new a.dkf a.dkf", "convert a.dkf",
                              "new a.dkf --save", "images a.dkf --scale 0", "images a.dkf --format png",
                              "images a.dkf --kind box", "images a.dkf --colour", "sheets a.dkf --columns 2",
                              "sheets a.dkf --kind card --columns 7 --rows 1", "html a.dkf --kind back",
                              "print a.dkf a.pdf --kind card", "print a.dkf a.pdf --index 1",
                              "print a.dkf a.pdf --kind card --index 1 --resolution 71"}) {
        EXPECT_EQ(Run(wrong), 2) << wrong;
        EXPECT_TRUE(Error.contains("Usage:")) << wrong;
    }
    EXPECT_EQ(Run("--version"), 0);
    EXPECT_EQ(Output, "Varnhelm Deck Forge 1.7.4\n");
    EXPECT_EQ(Run("--help"), 0);
    EXPECT_TRUE(Output.startsWith("Usage:"));
}

TEST_F(Batch, BacksAreWrittenWithTheirPrintTwins)
{
    const QString set = DECKFORGE_SOURCE_DIR "/fuzz/corpus/set/every-kind";
    EXPECT_EQ(Run("images " + set + " --kind back --scale 2 --twin --to DIR/out --format bmp"), 0)
        << Error.toStdString();
    const QStringList images = QDir(Folder.Path("out")).entryList({"*.bmp"});
    ASSERT_GE(images.size(), 2);
    ASSERT_EQ(images.size() % 2, 0);
    for (const QString& name : images) {
        if (!name.contains("@2x")) {
            EXPECT_EQ(Folder.Image("out/" + QString(name).replace(".bmp", "@2x.bmp")).size(),
                      Folder.Image("out/" + name).size() * 2);
        }
    }
    EXPECT_EQ(Run("images SET --scale 2 --twin"), 2);
    EXPECT_EQ(Run("images SET --kind back --twin"), 2);
}

TEST_F(Batch, PackingReportsWhatItLeavesOut)
{
    EXPECT_EQ(Run("pack SET DIR/packed"), 0) << Error.toStdString();
    EXPECT_TRUE(Folder.Has("packed/a.dkf"));
    EXPECT_EQ(Run("pack SET DIR/packed"), 1);
    EXPECT_TRUE(Error.contains("The folder is not empty")) << Error.toStdString();
}

} // namespace deckforge
