#include "support/Failures.h"
#include "support/TestFolder.h"

#include <QImage>
#include <QProcess>

namespace deckforge {

namespace {

struct Outcome {
    int Status;
    QString Output;
    QString Error;
};

/// The built program in a process of its own.
Outcome Batch(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(DECKFORGE_BATCH), arguments);
    EXPECT_TRUE(process.waitForFinished()) << "it hangs or does not start";
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

TEST(Batch, MakesConvertsAndDrawsASet)
{
    const TestFolder folder;
    const QString set = folder.Path(QStringLiteral("a.dkf"));
    Outcome run = Batch({QStringLiteral("new"), set});
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Error, QStringLiteral("Save file: The card set is saved.\n"));

    run = Batch({QStringLiteral("convert"), set, folder.Path(QStringLiteral("b.dkf"))});
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(folder.Read(QStringLiteral("b.dkf")),
              folder.Read(QStringLiteral("a.dkf")).replace("/a.dkf", "/b.dkf"));

    const QString images = folder.Path(QStringLiteral("made/images"));
    run = Batch({QStringLiteral("images"), set, QStringLiteral("--to"), images, QStringLiteral("--format"),
                 QStringLiteral("jpg"), QStringLiteral("--scale"), QStringLiteral("2"),
                 QStringLiteral("--save")});
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
    const QString to = folder.Path(QStringLiteral("out"));
    Batch({QStringLiteral("new"), set});
    EXPECT_EQ(Batch({QStringLiteral("html"), set, QStringLiteral("--to"), to}).Status, 1)
        << "no file names yet";
    EXPECT_EQ(
        Batch({QStringLiteral("images"), set, QStringLiteral("--to"), to, QStringLiteral("--save")}).Status,
        0);
    EXPECT_EQ(Batch({QStringLiteral("html"), set, QStringLiteral("--to"), to}).Status, 0);
    EXPECT_EQ(Batch({QStringLiteral("sheets"), set, QStringLiteral("--kind"), QStringLiteral("card"),
                     QStringLiteral("--columns"), QStringLiteral("2"), QStringLiteral("--rows"),
                     QStringLiteral("1"), QStringLiteral("--to"), to})
                  .Status,
              0);
    EXPECT_EQ(Batch({QStringLiteral("text"), set, folder.Path(QStringLiteral("a.txt"))}).Status, 0);
    EXPECT_EQ(Batch({QStringLiteral("backs"), to}).Status, 0);
    for (const char* name : {"out/CARD 1.bmp", "out/New set 1.htm", "out/New set Sheet 1.bmp", "a.txt",
                             "out/Warlock's Maze.bmp", "out/character back 2.bmp"})
        EXPECT_TRUE(folder.Has(QString::fromLatin1(name))) << name;
    EXPECT_FALSE(folder.Has(QStringLiteral("out/Blank.bmp")));
    const Outcome statistics = Batch({QStringLiteral("statistics"), set});
    EXPECT_TRUE(statistics.Output.startsWith(
        QStringLiteral("Number of cards used/type:\n1 - ENEMY- Animal (100%)\n")));
}

TEST(Batch, TellsAFailureInItsStatus)
{
    const TestFolder folder;
    Outcome run = Batch({QStringLiteral("images"), folder.Path(QStringLiteral("none.dkf"))});
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Error,
              QStringLiteral("Error: Error while opening the Varnhelm Card Set.\n\n53, File not found\n"));

    const QString set = folder.Path(QStringLiteral("a.dkf"));
    Batch({QStringLiteral("new"), set});
    folder.Write(QStringLiteral("file"), "in the way of the folder");
    run = Batch({QStringLiteral("images"), set, QStringLiteral("--to"), folder.Path(QStringLiteral("file"))});
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Error.contains(QStringLiteral("Saving the card: Something went wrong.\n")));
}

TEST(Batch, RefusesAWrongCommandLineAndShowsItsUse)
{
    const QString set = QStringLiteral("a.dkf");
    for (const QStringList& wrong : {
             QStringList{},
             QStringList{QStringLiteral("paint"), set},
             QStringList{QStringLiteral("new")},
             QStringList{QStringLiteral("new"), set, set},
             QStringList{QStringLiteral("convert"), set},
             QStringList{QStringLiteral("new"), set, QStringLiteral("--save")},
             QStringList{QStringLiteral("images"), set, QStringLiteral("--scale"), QStringLiteral("0")},
             QStringList{QStringLiteral("images"), set, QStringLiteral("--format"), QStringLiteral("png")},
             QStringList{QStringLiteral("images"), set, QStringLiteral("--kind"), QStringLiteral("box")},
             QStringList{QStringLiteral("images"), set, QStringLiteral("--colour")},
             QStringList{QStringLiteral("sheets"), set, QStringLiteral("--columns"), QStringLiteral("2")},
             QStringList{QStringLiteral("sheets"), set, QStringLiteral("--kind"), QStringLiteral("card"),
                         QStringLiteral("--columns"), QStringLiteral("7"), QStringLiteral("--rows"),
                         QStringLiteral("1")},
             QStringList{QStringLiteral("html"), set, QStringLiteral("--kind"), QStringLiteral("back")},
         }) {
        const Outcome run = Batch(wrong);
        EXPECT_EQ(run.Status, 2) << wrong.join(QLatin1Char(' ')).toStdString();
        EXPECT_TRUE(run.Error.contains(QStringLiteral("Usage:")));
    }
    EXPECT_EQ(Batch({QStringLiteral("--version")}).Output, QStringLiteral("Varnhelm Deck Forge 1.7.4\n"));
    EXPECT_TRUE(Batch({QStringLiteral("--help")}).Output.startsWith(QStringLiteral("Usage:")));
}

} // namespace deckforge
