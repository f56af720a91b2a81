// SPDX-License-Identifier: GPL-3.0-or-later

#include "batch/BatchCommands.h"

#include "batch/ConsoleUser.h"
#include "batch/Options.h"
#include "commands/OutputCommands.h"
#include "commands/SetCommands.h"
#include "compose/NewBack.h"
#include "compose/StandardCard.h"
#include "exchange/Pack.h"
#include "imaging/PictureLoader.h"
#include "output/Statistics.h"
#include "output/modCapture.h"
#include "platform/Files.h"
#include "platform/Version.h"

#include <QDir>
#include <algorithm>
#include <cstdio>
#include <limits>

namespace deckforge {

namespace {

constexpr int MaxScale = 16;

// Running

/// Carries out a task on a new set: task(Workshop&, UserPort&). A failure that it does not report itself is
/// reported here.
template <class Task>
ExitStatus RunOnNewSet(int scale, Task&& task)
{
    ConsoleUser user;
    bool done = false;
    try {
        WithMemoryAsFailure([&] {
            Workshop workshop(scale);
            ShowViewFailures(user, InitForm(workshop));
            done = task(workshop, user);
        });
    } catch (const RunTimeError& error) {
        ShowUnhandledError(user, error);
        if (!error.Place().isEmpty())
            user.ReportProblems({error.PlaceAndDescription()});
    }
    return done && !user.HasReportedFailure() ? ExitStatus::Done : ExitStatus::FailureReported;
}

/// Carries out a task on the set of a file. None of its pictures is loaded.
template <class Task>
ExitStatus RunOnTexts(const QString& path, Task&& task)
{
    return RunOnNewSet(1, [&](Workshop& workshop, UserPort& user) {
        return OpenSet(workshop.Set, path, user) && task(workshop.Set, user);
    });
}

/// Carries out a task that composes cards on the set of a file.
template <class Task>
ExitStatus RunOnSet(const QString& path, int scale, Task&& task)
{
    return RunOnNewSet(scale, [&](Workshop& workshop, UserPort& user) {
        if (!OpenSet(workshop.Set, path, user))
            return false;
        ShowViewFailures(user, ShowOpenedSet(workshop));
        return task(workshop, user);
    });
}

/// Nobody is there to be asked: a set is replaced only by the commands that save it.
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

/// Writes the set as its save command does, once the path is chosen.
bool WriteSetTo(CardSet& set, const QString& path, UserPort& user)
{
    set.Header.FileName = AbsolutePath(path);
    return WriteSet(set, set.Header.FileName, user);
}

/// The images of the user-designed backs, one after the other; the window makes them one by one. A back that
/// cannot be shown is reported here; saving it has no message box for that.
/// For a twin scale above 1 the images are print twins of those at scale 1.
void CreateNewCardBacks(Workshop& workshop, ShownRun& run, int twinScale)
{
    CardSet& set = workshop.Set;
    for (int i = 1; i <= set.NewCardBacks.Count(); ++i) {
        set.NewCardBacks.Current = static_cast<int16>(i);
        try {
            ShowNewCardBack(workshop, set.NewCardBacks.Current);
        } catch (const RunTimeError& error) {
            ShowUnhandledError(run.User, error);
        }
        const auto image = SaveImage(workshop, run, CardKind::NewBack, set.NewCardBacks.Current);
        if (image && twinScale > 1)
            RenameFile(image->Full(), PrintTwinPath(image->Full(), twinScale));
    }
}

constexpr KindOption<CardKind> ImageKinds[] = {{"card", CardKind::Standard},
                                               {"large", CardKind::Large},
                                               {"character", CardKind::Character},
                                               {"back", CardKind::NewBack}};
constexpr KindOption<CardKind> SheetKinds[] = {{"card", CardKind::Standard}, {"large", CardKind::Large}};
constexpr KindOption<HtmlPages> HtmlKinds[] = {{"card", HtmlPages::Cards},
                                               {"large", HtmlPages::LargeCards},
                                               {"character", HtmlPages::Characters},
                                               {"piece", HtmlPages::Pieces}};
constexpr KindOption<PrintedPage> PrintKinds[] = {
    {"card", PrintedPage::Card}, {"large", PrintedPage::LargeCard}, {"character", PrintedPage::Character}};

// Commands

ExitStatus RunNew(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    RejectExisting(paths[0]);
    return RunOnNewSet(
        1, [&](Workshop& workshop, UserPort& user) { return WriteSetTo(workshop.Set, paths[0], user); });
}

ExitStatus RunConvert(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    return RunOnTexts(paths[0],
                      [&](CardSet& set, UserPort& user) { return WriteSetTo(set, paths[1], user); });
}

ExitStatus RunImages(const QStringList& paths, const QCommandLineParser& parser)
{
    const auto kinds = KindsFrom(parser, ImageKinds);
    const int scale = NumberOption(parser, "scale", MaxScale);
    const RunSettings settings = SettingsFrom(parser);
    const bool hasTwins = parser.isSet(QStringLiteral("twin"));
    if (hasTwins && (scale == 1 || kinds != std::vector{CardKind::NewBack}))
        throw WrongUse{QStringLiteral("--twin takes --kind back and a --scale above 1.")};
    const auto runAt = [&](int runScale) {
        return RunOnSet(paths[0], runScale, [&](Workshop& workshop, UserPort& user) {
            const SetHeader stored = workshop.Set.Header;
            settings.ApplyTo(workshop.Set.Header);
            {
                ShownRun run(user);
                for (const CardKind kind : kinds) {
                    if (kind == CardKind::NewBack)
                        CreateNewCardBacks(workshop, run, hasTwins ? runScale : 1);
                    else
                        CreateImages(workshop, run, kind);
                }
            }
            workshop.Set.Header = stored;
            return !parser.isSet(QStringLiteral("save")) || WriteSetTo(workshop.Set, paths[0], user);
        });
    };
    if (!hasTwins)
        return runAt(scale);
    const ExitStatus twins = runAt(scale); // first, since both have the same names until they are renamed
    return std::max(twins, runAt(1));
}

ExitStatus RunSheets(const QStringList& paths, const QCommandLineParser& parser)
{
    const auto kinds = KindsFrom(parser, SheetKinds);
    if (kinds.size() > 1) // after a run over one kind the flag of the last card stays set
        throw WrongUse{QStringLiteral("\"sheets\" takes one kind.")};
    SheetGrid grid;
    grid.Cols = static_cast<int16>(NumberOption(parser, "columns", SheetGrid::MaxCols));
    grid.Rows = static_cast<int16>(NumberOption(parser, "rows", SheetGrid::MaxRows));
    const RunSettings settings = SettingsFrom(parser);
    return RunOnSet(paths[0], 1, [&](Workshop& workshop, UserPort& user) {
        settings.ApplyTo(workshop.Set.Header);
        ShownRun run(user);
        CreateSheets(workshop, run, kinds.front(), grid);
        return true;
    });
}

ExitStatus RunHtml(const QStringList& paths, const QCommandLineParser& parser)
{
    const auto kinds = KindsFrom(parser, HtmlKinds);
    const RunSettings settings = SettingsFrom(parser);
    return RunOnTexts(paths[0], [&](CardSet& set, UserPort& user) {
        settings.ApplyTo(set.Header);
        ShownRun run(user);
        bool done = true;
        for (const HtmlPages pages : kinds)
            done = CreateHtml(set, run, pages) && done;
        return done;
    });
}

ExitStatus RunText(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    RejectWritingOverSet(paths[0], paths[1]);
    return RunOnTexts(paths[0],
                      [&](CardSet& set, UserPort& user) { return WriteListing(set, paths[1], user); });
}

ExitStatus RunStatistics(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    return RunOnTexts(paths[0], [](CardSet& set, UserPort& /*user*/) {
        if (set.Cards.Count() > 0)
            ReplaceUnknownBack(set, set.Cards[1]); // the window shows this card before it counts
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
    const PrintedPage page = kinds.front();
    const auto index = static_cast<int16>(NumberOption(parser, "index", std::numeric_limits<int16>::max()));
    const int pixelsPerInch = NumberOption(parser, "resolution", 2400, 72);
    return RunOnSet(paths[0], 1, [&](Workshop& workshop, UserPort& user) {
        ShownRun run(user);
        if (const CompositionFailure failure = ShowForPage(workshop, page, index)) {
            ShowCompositionFailure(user, failure);
            ReportPage(workshop, run, page);
            return false;
        }
        WritePdf(workshop, run, page, AbsolutePath(paths[1]), pixelsPerInch);
        return true;
    });
}

ExitStatus RunBacks(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    return RunOnNewSet(1, [&](Workshop& workshop, UserPort& /*user*/) {
        QDir().mkpath(paths[0]);
        WriteCardBacks(workshop.Set, workshop.Art, AbsolutePath(paths[0]));
        return true;
    });
}

ExitStatus RunPack(const QStringList& paths, const QCommandLineParser& /*parser*/)
{
    return RunOnTexts(paths[0], [&](CardSet& set, UserPort& user) {
        const PackOutcome outcome = PackSet(set, paths[0], AbsolutePath(paths[1]));
        user.ReportProblems(outcome.Problems);
        ShowBox(user, BoxStyle::Information, "Pack",
                QStringLiteral("The set is packed with %1 pictures.").arg(outcome.Copied));
        return true;
    });
}

/// A command and what it takes.
struct Command {
    const char* Name;
    int PathCount;
    const char* Options; ///< their names, a blank between them
    ExitStatus (*Run)(const QStringList& paths, const QCommandLineParser& parser);
};

constexpr Command Commands[] = {
    {"new", 1, "", RunNew},
    {"convert", 2, "", RunConvert},
    {"images", 1, "kind to format scale save twin", RunImages},
    {"sheets", 1, "kind columns rows to format", RunSheets},
    {"html", 1, "kind to", RunHtml},
    {"text", 2, "", RunText},
    {"statistics", 1, "", RunStatistics},
    {"print", 2, "kind index resolution", RunPrint},
    {"backs", 1, "", RunBacks},
    {"pack", 2, "", RunPack},
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
