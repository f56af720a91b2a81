#include "batch/BatchCommands.h"

#include "batch/ConsoleUser.h"
#include "compose/SetView.h"
#include "core/Vocabulary.h"
#include "files/modFile.h"
#include "output/modCapture.h"
#include "platform/Paths.h"
#include "platform/Version.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

namespace deckforge {

namespace {

constexpr int MostScale = 16;

/// A command line that is no command; the text says why.
struct WrongUse {
    QString Text;
};

/// The options of `images`, for this run only.
struct ImageOptions {
    std::optional<QString> SaveTo;
    std::optional<int16> SaveFormat;
    int Scale = 1;
    bool Save = false;
};

constexpr char Usage[] = R"(Usage:
  deckforge-batch new OUT.dkf
  deckforge-batch convert SET.dkf OUT.dkf
  deckforge-batch images SET.dkf [--kind card|all] [--to DIR] [--format bmp|jpg|gif] [--scale N] [--save]
  deckforge-batch --help | --version

  new      writes a new card set with one card
  convert  reads a card set of any version and writes it in the current one
  images   writes the image of every card to the folder that the set names

  --kind    the kind of card; all where it is not given
  --to      the folder of the images, for this run; it is made if it is not there
  --format  the format of the images, for this run
  --scale   how many pixels an image has for each pixel of the card in both directions, from 1 to 16
  --save    writes the set back with the file names that the run gave to its cards

Boxes of the program go to standard error. Exit status: 0 done, 1 a failure was reported, 2 wrong use.
)";

QString AbsolutePath(const QString& path)
{
    return QFileInfo(path).absoluteFilePath();
}

/// Writes the set as its save command does, once the path is chosen.
bool WriteSetTo(Workshop& workshop, const QString& path)
{
    SetHeader& header = workshop.Set.Header;
    header.FileName = AbsolutePath(path);
    return WriteDKF(workshop.Set, header.FileName, workshop.User, Report::Tell);
}

/// Carries out a task on a new set. A failure that the task does not tell itself is told here.
template <class Task>
ExitStatus RunOnNewSet(int scale, Task&& task)
{
    ConsoleUser user;
    bool done = false;
    try {
        Workshop workshop(user, scale);
        InitForm(workshop);
        done = task(workshop);
    } catch (const RunTimeError& error) {
        TellUntrapped(user, error);
    } catch (const std::bad_alloc&) {
        TellUntrapped(user, RunTimeError(ErrorNumber::OutOfMemory));
    }
    return done && !user.WasToldOfFailure() ? ExitStatus::Done : ExitStatus::FailureReported;
}

ExitStatus RunNew(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    return RunOnNewSet(1, [&](Workshop& workshop) { return WriteSetTo(workshop, paths[0]); });
}

ExitStatus RunConvert(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    return RunOnNewSet(1, [&](Workshop& workshop) {
        return ReadDKF(workshop.Set, paths[0], workshop.User) && WriteSetTo(workshop, paths[1]);
    });
}

bool CreateImages(Workshop& workshop, const QString& path, const ImageOptions& options)
{
    if (!ReadDKF(workshop.Set, path, workshop.User))
        return false;
    SetHeader& header = workshop.Set.Header;
    const SetHeader stored = header;
    header.SaveTo = options.SaveTo.value_or(stored.SaveTo);
    header.SaveFormat = options.SaveFormat.value_or(stored.SaveFormat);
    ShowOpenedSet(workshop);
    CreateCards(workshop);
    header.SaveTo = stored.SaveTo;
    header.SaveFormat = stored.SaveFormat;
    return !options.Save || WriteSetTo(workshop, path);
}

std::optional<int16> FormatNamed(const QString& name)
{
    const qsizetype row = SaveFormats().indexOf(name.toUpper());
    if (row < 0)
        throw WrongUse{QStringLiteral("There is no image format \"%1\".").arg(name)};
    return static_cast<int16>(row);
}

int ScaleFrom(const QString& text)
{
    bool isNumber = false;
    const int scale = text.toInt(&isNumber);
    if (!isNumber || scale < 1 || scale > MostScale)
        throw WrongUse{QStringLiteral("The scale must be a number from 1 to %1.").arg(MostScale)};
    return scale;
}

ImageOptions OptionsFrom(const QCommandLineParser& parser)
{
    const QString kind = parser.value(QStringLiteral("kind"));
    if (kind != QLatin1String("card") && kind != QLatin1String("all"))
        throw WrongUse{QStringLiteral("There is no kind \"%1\".").arg(kind)};
    ImageOptions options;
    options.Scale = ScaleFrom(parser.value(QStringLiteral("scale")));
    options.Save = parser.isSet(QStringLiteral("save"));
    if (parser.isSet(QStringLiteral("to")))
        options.SaveTo = WithSeparator(AbsolutePath(parser.value(QStringLiteral("to"))));
    if (parser.isSet(QStringLiteral("format")))
        options.SaveFormat = FormatNamed(parser.value(QStringLiteral("format")));
    return options;
}

ExitStatus RunImages(const QStringList& paths, const QCommandLineParser& parser)
{
    const ImageOptions options = OptionsFrom(parser);
    if (options.SaveTo)
        QDir().mkpath(*options.SaveTo); // where it cannot be made, writing the images tells so
    return RunOnNewSet(options.Scale,
                       [&](Workshop& workshop) { return CreateImages(workshop, paths[0], options); });
}

/// A command and what it takes.
struct Command {
    const char* Name;
    int PathCount;
    bool TakesOptions;
    ExitStatus (*Run)(const QStringList& paths, const QCommandLineParser& parser);
};

constexpr Command Commands[] = {
    {"new", 1, false, RunNew},
    {"convert", 2, false, RunConvert},
    {"images", 1, true, RunImages},
};

const Command& CommandNamed(const QString& name)
{
    for (const Command& command : Commands) {
        if (name == QLatin1String(command.Name))
            return command;
    }
    throw WrongUse{name.isEmpty() ? QStringLiteral("A command is missing.")
                                  : QStringLiteral("There is no command \"%1\".").arg(name)};
}

void AddOptions(QCommandLineParser& parser)
{
    const auto option = [&](const char* name, const char* value, const char* usual) {
        parser.addOption(QCommandLineOption(QString::fromLatin1(name), {}, QString::fromLatin1(value),
                                            QString::fromLatin1(usual)));
    };
    option("help", "", "");
    option("version", "", "");
    option("kind", "KIND", "all");
    option("to", "DIR", "");
    option("format", "FORMAT", "");
    option("scale", "N", "1");
    option("save", "", "");
}

ExitStatus RunCommand(const QCommandLineParser& parser)
{
    QStringList paths = parser.positionalArguments();
    const Command& command = CommandNamed(paths.isEmpty() ? QString() : paths.takeFirst());
    if (paths.size() != command.PathCount || paths.contains(QString()))
        throw WrongUse{QStringLiteral("\"%1\" takes %2 path(s).").arg(command.Name).arg(command.PathCount)};
    if (!command.TakesOptions && !parser.optionNames().isEmpty())
        throw WrongUse{QStringLiteral("\"%1\" takes no options.").arg(command.Name)};
    return command.Run(paths, parser);
}

} // namespace

ExitStatus RunBatch(const QStringList& arguments)
{
    QCommandLineParser parser;
    AddOptions(parser);
    try {
        if (!parser.parse(QStringList(QStringLiteral("deckforge-batch")) + arguments))
            throw WrongUse{parser.errorText()};
        if (parser.isSet(QStringLiteral("help"))) {
            std::fputs(Usage, stdout);
            return ExitStatus::Done;
        }
        if (parser.isSet(QStringLiteral("version"))) {
            std::printf("Varnhelm Deck Forge %d.%d.%d\n", VersionMajor, VersionMinor, VersionRevision);
            return ExitStatus::Done;
        }
        return RunCommand(parser);
    } catch (const WrongUse& wrong) {
        std::fprintf(stderr, "%s\n\n%s", qUtf8Printable(wrong.Text), Usage);
        return ExitStatus::WrongUse;
    }
}

} // namespace deckforge
