#include "batch/BatchCommands.h"

#include "batch/ConsoleUser.h"
#include "compose/NewBack.h"
#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "core/Vocabulary.h"
#include "files/modFile.h"
#include "output/HtmlSheets.h"
#include "output/Printing.h"
#include "output/Statistics.h"
#include "output/frmCardSheet.h"
#include "output/modCapture.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Version.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <cstdio>
#include <limits>

namespace deckforge {

namespace {

constexpr int MaxScale = 16;

/// A wrong command line; the text says why.
struct WrongUse {
    QString Text;
};

constexpr char Usage[] = R"(Usage:
  deckforge-batch new OUT.dkf
  deckforge-batch convert SET.dkf OUT.dkf
  deckforge-batch images SET.dkf [--kind card|large|character|back|all] [--to DIR] [--format bmp|jpg|gif]
                         [--scale N] [--save]
  deckforge-batch sheets SET.dkf --kind card|large --columns C --rows R [--to DIR] [--format bmp|jpg|gif]
  deckforge-batch html SET.dkf [--kind card|large|character|piece|all] [--to DIR]
  deckforge-batch text SET.dkf OUT.txt
  deckforge-batch statistics SET.dkf
  deckforge-batch print SET.dkf OUT.pdf --kind card|large|character --index N [--resolution DOTS]
  deckforge-batch backs DIR
  deckforge-batch --help | --version

  new         writes a new card set with one card
  convert     reads a card set of any version and writes it in the current one
  images      writes the image of every card to the folder that the set names
  sheets      writes sheets of 1 to 6 columns and 1 to 8 rows of cards there, each card with its copies
  html        writes pages there that show the images of the cards; the cards need file names, see --save
  text        writes a listing of the set's texts
  statistics  prints how many cards of each type and back there are
  print       writes the page that the window prints of one card, with its back, as a PDF file
  backs       writes the built-in card backs to a folder

  --kind      the kind of card; all where it is not given
  --to        the folder to write to, for this run; it is made if it is not there
  --format    the format of the images, for this run
  --scale     how many pixels an image has for each pixel of the card in both directions, from 1 to 16
  --index     the number of the card among those of its kind
  --resolution  how many dots to the inch the page has, from 72 to 2400; 600 where it is not given. Margin
              and gaps of the page count dots
  --save      writes the set back with the file names that the run gave to its cards

Results go to standard output, message boxes and problems to standard error. A problem is a line such as
"card 12 "Wolf": /art/wolf.bmp: File not found". Exit status: 0 done and complete, 1 something was reported,
2 wrong use.
)";

// Options

QString AbsolutePath(const QString& path)
{
    return QFileInfo(path).absoluteFilePath();
}

int NumberOption(const QCommandLineParser& parser, const char* name, int most, int least = 1)
{
    bool isNumber = false;
    const int number = parser.value(QString::fromLatin1(name)).toInt(&isNumber);
    if (!isNumber || number < least || number > most)
        throw WrongUse{QStringLiteral("--%1 takes a number from %2 to %3.").arg(name).arg(least).arg(most)};
    return number;
}

int16 FormatNamed(const QString& name)
{
    const qsizetype row = SaveFormats().indexOf(name.toUpper());
    if (row < 0)
        throw WrongUse{QStringLiteral("There is no image format \"%1\".").arg(name)};
    return static_cast<int16>(row);
}

/// Options that override settings of the set in this run.
struct RunSettings {
    std::optional<QString> SaveTo;
    std::optional<int16> SaveFormat;
};

RunSettings SettingsFrom(const QCommandLineParser& parser)
{
    RunSettings settings;
    if (parser.isSet(QStringLiteral("format")))
        settings.SaveFormat = FormatNamed(parser.value(QStringLiteral("format")));
    if (parser.isSet(QStringLiteral("to")))
        settings.SaveTo = WithSeparator(AbsolutePath(parser.value(QStringLiteral("to"))));
    return settings;
}

/// The kinds named by the option, out of those of the command; all if it is not given.
template <class Row, std::size_t size>
std::vector<const Row*> KindsFrom(const QCommandLineParser& parser, const Row (&rows)[size])
{
    const QString kind = parser.value(QStringLiteral("kind"));
    std::vector<const Row*> kinds;
    for (const Row& row : rows) {
        if (kind == QLatin1String("all") || kind == QLatin1String(row.Kind))
            kinds.push_back(&row);
    }
    if (kinds.empty())
        throw WrongUse{QStringLiteral("There is no kind \"%1\" here.").arg(kind)};
    return kinds;
}

// Running

/// Runs a task on a new set, and shows failures that the task does not show itself.
template <class Task>
ExitStatus RunOnNewSet(int scale, Task&& task)
{
    ConsoleUser user;
    bool done = false;
    try {
        WithMemoryAsFailure([&] {
            Workshop workshop(user, scale);
            InitForm(workshop);
            done = task(workshop);
        });
    } catch (const RunTimeError& error) {
        ShowUnhandledError(user, error);
        if (!error.Place().isEmpty())
            user.ReportProblems({error.PlaceAndDescription()});
    }
    return done && !user.HasReportedFailure() ? ExitStatus::Done : ExitStatus::FailureReported;
}

/// Runs a task on the set of a file. Does not load its pictures.
template <class Task>
ExitStatus RunOnTexts(const QString& path, Task&& task)
{
    return RunOnNewSet(
        1, [&](Workshop& workshop) { return ReadDKF(workshop.Set, path, workshop.User) && task(workshop); });
}

/// Runs a task that composes cards on the set of a file.
template <class Task>
ExitStatus RunOnSet(const QString& path, int scale, Task&& task)
{
    return RunOnNewSet(scale, [&](Workshop& workshop) {
        if (!ReadDKF(workshop.Set, path, workshop.User))
            return false;
        ShowOpenedSet(workshop);
        return task(workshop);
    });
}

/// The settings apply during the task and are not saved.
template <class Task>
void WithSettings(SetHeader& header, const RunSettings& settings, Task&& task)
{
    const QString saveTo = header.SaveTo;
    const int16 saveFormat = header.SaveFormat;
    header.SaveTo = settings.SaveTo.value_or(saveTo);
    header.SaveFormat = settings.SaveFormat.value_or(saveFormat);
    task();
    header.SaveTo = saveTo;
    header.SaveFormat = saveFormat;
}

/// Nobody can confirm: only commands that save a set replace it.
void RejectExisting(const QString& path)
{
    if (IsRegularFile(path))
        throw WrongUse{
            QStringLiteral("\"%1\" already exists. Choose another name, or delete it first.").arg(path)};
}

void RejectWritingOverSet(const QString& set, const QString& output)
{
    if (IsRegularFile(output) && IsSameFile(set, output))
        throw WrongUse{
            QStringLiteral("\"%1\" is the card set itself. Choose another file to write to.").arg(output)};
}

/// Writes the set as the save command does after its file dialog.
bool WriteSetTo(Workshop& workshop, const QString& path)
{
    SetHeader& header = workshop.Set.Header;
    header.FileName = AbsolutePath(path);
    return WriteDKF(workshop.Set, header.FileName, workshop.User, Report::Tell);
}

/// Creates the images of all user-designed backs, which the window creates one by one. Reports backs that
/// cannot be shown.
void CreateNewCardBacks(Workshop& workshop, RunReport& report)
{
    CardSet& set = workshop.Set;
    for (int i = 1; i <= set.NewCardBacks.Count(); ++i) {
        set.NewCardBacks.Current = static_cast<int16>(i);
        try {
            ShowNewCardBack(workshop, set.NewCardBacks.Current);
        } catch (const RunTimeError& error) {
            ShowUnhandledError(workshop.User, error);
        }
        SaveNewCardBack(workshop, report, set.NewCardBacks.Current, Ask::No, Tell::No);
    }
}

struct ImageKind {
    const char* Kind;
    void (*Create)(Workshop&, RunReport&);
};

constexpr ImageKind ImageKinds[] = {{"card", CreateCards},
                                    {"large", CreateLargeCards},
                                    {"character", CreateCharacters},
                                    {"back", CreateNewCardBacks}};

struct SheetKind {
    const char* Kind;
    void (*Create)(Workshop&, RunReport&, std::optional<SheetGrid>);
};

constexpr SheetKind SheetKinds[] = {{"card", CreateCardSheets}, {"large", CreateLargeCardSheets}};

struct HtmlKind {
    const char* Kind;
    bool (*Create)(const CardSet&, UserPort&, RunReport&);
};

constexpr HtmlKind HtmlKinds[] = {{"card", CreateHtmlCards},
                                  {"large", CreateHtmlLargeCards},
                                  {"character", CreateHtmlCharacters},
                                  {"piece", CreateHtmlPieces}};

struct PrintKind {
    const char* Kind;
    PrintedPage Page;
};

constexpr PrintKind PrintKinds[] = {
    {"card", PrintedPage::Card}, {"large", PrintedPage::LargeCard}, {"character", PrintedPage::Character}};

// Commands

ExitStatus RunNew(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    RejectExisting(paths[0]);
    return RunOnNewSet(1, [&](Workshop& workshop) { return WriteSetTo(workshop, paths[0]); });
}

ExitStatus RunConvert(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    return RunOnTexts(paths[0], [&](Workshop& workshop) { return WriteSetTo(workshop, paths[1]); });
}

ExitStatus RunImages(const QStringList& paths, const QCommandLineParser& parser)
{
    const auto kinds = KindsFrom(parser, ImageKinds);
    const int scale = NumberOption(parser, "scale", MaxScale);
    const RunSettings settings = SettingsFrom(parser);
    return RunOnSet(paths[0], scale, [&](Workshop& workshop) {
        WithSettings(workshop.Set.Header, settings, [&] {
            RunReport report(workshop.User);
            for (const ImageKind* kind : kinds)
                kind->Create(workshop, report);
        });
        return !parser.isSet(QStringLiteral("save")) || WriteSetTo(workshop, paths[0]);
    });
}

ExitStatus RunSheets(const QStringList& paths, const QCommandLineParser& parser)
{
    const auto kinds = KindsFrom(parser, SheetKinds);
    if (kinds.size() > 1) // the flag of the last card stays set after a run over one kind
        throw WrongUse{QStringLiteral("\"sheets\" takes one kind.")};
    SheetGrid grid;
    grid.Cols = static_cast<int16>(NumberOption(parser, "columns", SheetGrid::MostCols));
    grid.Rows = static_cast<int16>(NumberOption(parser, "rows", SheetGrid::MostRows));
    const RunSettings settings = SettingsFrom(parser);
    return RunOnSet(paths[0], 1, [&](Workshop& workshop) {
        WithSettings(workshop.Set.Header, settings, [&] {
            RunReport report(workshop.User);
            kinds.front()->Create(workshop, report, grid);
        });
        return true;
    });
}

ExitStatus RunHtml(const QStringList& paths, const QCommandLineParser& parser)
{
    const auto kinds = KindsFrom(parser, HtmlKinds);
    const RunSettings settings = SettingsFrom(parser);
    return RunOnTexts(paths[0], [&](Workshop& workshop) {
        bool done = true;
        WithSettings(workshop.Set.Header, settings, [&] {
            RunReport report(workshop.User);
            for (const HtmlKind* kind : kinds)
                done = kind->Create(workshop.Set, workshop.User, report) && done;
        });
        return done;
    });
}

ExitStatus RunText(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    RejectWritingOverSet(paths[0], paths[1]);
    return RunOnTexts(
        paths[0], [&](Workshop& workshop) { return ExportSetText(workshop.Set, paths[1], workshop.User); });
}

ExitStatus RunStatistics(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    return RunOnTexts(paths[0], [](Workshop& workshop) {
        CardSet& set = workshop.Set;
        if (set.Cards.Count() > 0)
            ReplaceUnknownBack(set, set.Cards[1]); // As the window does before counting.
        const QString text = StatisticsText(set).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        if (std::printf("%s\n", qUtf8Printable(text)) < 0 || std::fflush(stdout) != 0)
            throw RunTimeError(ErrorNumber::DeviceIo);
        return true;
    });
}

ExitStatus RunPrint(const QStringList& paths, const QCommandLineParser& parser)
{
    const auto kinds = KindsFrom(parser, PrintKinds);
    if (kinds.size() > 1)
        throw WrongUse{QStringLiteral("\"print\" takes one kind.")};
    RejectWritingOverSet(paths[0], paths[1]);
    const PrintKind& kind = *kinds.front();
    const auto index = static_cast<int16>(NumberOption(parser, "index", std::numeric_limits<int16>::max()));
    const int pixelsPerInch = NumberOption(parser, "resolution", 2400, 72);
    return RunOnSet(paths[0], 1, [&](Workshop& workshop) {
        RunReport report(workshop.User);
        if (!ShowForPage(workshop, kind.Page, index)) {
            ReportPage(workshop, report, kind.Page);
            return false;
        }
        WritePdf(workshop, report, kind.Page, AbsolutePath(paths[1]), pixelsPerInch);
        return true;
    });
}

ExitStatus RunBacks(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    return RunOnNewSet(1, [&](Workshop& workshop) {
        QDir().mkpath(paths[0]);
        WriteCardBacks(workshop, AbsolutePath(paths[0]));
        return true;
    });
}

/// A command with its options.
struct Command {
    const char* Name;
    int PathCount;
    const char* Options; ///< option names separated by blanks
    ExitStatus (*Run)(const QStringList& paths, const QCommandLineParser& parser);
};

constexpr Command Commands[] = {
    {"new", 1, "", RunNew},
    {"convert", 2, "", RunConvert},
    {"images", 1, "kind to format scale save", RunImages},
    {"sheets", 1, "kind columns rows to format", RunSheets},
    {"html", 1, "kind to", RunHtml},
    {"text", 2, "", RunText},
    {"statistics", 1, "", RunStatistics},
    {"print", 2, "kind index resolution", RunPrint},
    {"backs", 1, "", RunBacks},
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
    const auto option = [&](const char* name, const char* value, const char* defaultValue) {
        parser.addOption(QCommandLineOption(QString::fromLatin1(name), {}, QString::fromLatin1(value),
                                            QString::fromLatin1(defaultValue)));
    };
    option("help", "", "");
    option("version", "", "");
    option("kind", "KIND", "all");
    option("columns", "C", "");
    option("rows", "R", "");
    option("index", "N", "");
    option("resolution", "DOTS", "600");
    option("to", "DIR", "");
    option("format", "FORMAT", "");
    option("scale", "N", "1");
    option("save", "", "");
}

void CheckOptions(const Command& command, const QCommandLineParser& parser)
{
    const QStringList known = QString::fromLatin1(command.Options).split(QLatin1Char(' '));
    for (const QString& option : parser.optionNames()) {
        if (!known.contains(option))
            throw WrongUse{QStringLiteral("\"%1\" takes no --%2.").arg(QLatin1String(command.Name), option)};
    }
}

ExitStatus RunCommand(const QCommandLineParser& parser)
{
    QStringList paths = parser.positionalArguments();
    const Command& command = CommandNamed(paths.isEmpty() ? QString() : paths.takeFirst());
    if (paths.size() != command.PathCount || paths.contains(QString()))
        throw WrongUse{QStringLiteral("\"%1\" takes %2 path(s).").arg(command.Name).arg(command.PathCount)};
    CheckOptions(command, parser);
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
