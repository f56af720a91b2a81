// SPDX-License-Identifier: GPL-3.0-or-later

#include "commands/OutputCommands.h"

#include "output/Statistics.h"
#include "output/modCapture.h"

#include <QPagedPaintDevice>

namespace deckforge {

namespace {

/// Words of the dialogs and message boxes.
struct KindWords {
    const char* SaveTitle;
    const char* One;
    const char* Several; ///< not for user-designed backs, which are saved one by one
};

const KindWords& WordsOf(CardKind kind)
{
    static constexpr KindWords words[] = {{"Save Card", "card", "cards"},
                                          {"Save Large Card", "large card", "large cards"},
                                          {"Save Character Card", "character card", "characters cards"},
                                          {"Save New Card Back", "card", nullptr}};
    return words[static_cast<std::size_t>(kind)];
}

/// Shows "1 card is created." or "2 cards are created."
void ShowCreated(UserPort& user, const QString& title, int count, const QString& one, const QString& several)
{
    const QString created = count == 1
                                ? QStringLiteral("1 %1 is created.").arg(one)
                                : QStringLiteral("%1 %2 are created.").arg(QString::number(count), several);
    ShowBox(user, BoxStyle::Information, title, created);
}

/// Kept: titles for characters are those of large cards.
QString CreateTitle(CardKind kind, const char* what)
{
    return QStringLiteral("Create %1%2").arg(kind == CardKind::Standard ? "" : "large ", what);
}

FileDialogRequest ImageDialog(const char* dialogTitle, const QString& title, const QString& extension)
{
    return {.Title = QString::fromLatin1(dialogTitle),
            .FileName = title + QLatin1Char('.') + extension,
            .Filter = QStringLiteral("All files(*.*)|*.*|Picture (*.%1)|*.%1").arg(extension),
            .DefaultExtension = extension};
}

} // namespace

void ShowCompositionFailure(UserPort& user, const CompositionFailure& failure)
{
    if (!failure)
        return;
    ShowBox(user, BoxStyle::Critical, "Cannot draw picture correct",
            QStringLiteral("Error while drawing the card.\r\n\r\n") + failure->NumberAndDescription());
}

void ShowViewFailures(UserPort& user, const ViewFailures& failures)
{
    if (failures.Symbol)
        ShowUnhandledError(user, *failures.Symbol);
    ShowCompositionFailure(user, failures.FirstCard);
}

ShownRun::ShownRun(UserPort& user) : User(user)
{
    User.ReportProblems({}); // removes those of the previous run
}

ShownRun::~ShownRun()
{
    if (!Problems().isEmpty())
        User.ReportProblems(Problems());
}

void ShownRun::ShowNotWritten(const char* title, const QString& reason)
{
    ShowBox(User, BoxStyle::Critical, title,
            QStringLiteral("Something went wrong.") +
                (reason.isEmpty() ? QString() : QStringLiteral("\r\n\r\n") + reason));
}

void SaveImageAs(Workshop& workshop, ShownRun& run, CardKind kind, int16 index)
{
    const CardSet& set = workshop.Set;
    const KindWords& words = WordsOf(kind);
    const auto chosen = run.User.AskSaveFile(
        ImageDialog(words.SaveTitle, NameOf(set, kind, index), ImageExtension(set.Header.SaveFormat)));
    if (!chosen)
        return;
    if (const auto path = SaveImage(workshop, run, kind, index, {.Chosen = *chosen}))
        ShowBox(run.User, BoxStyle::Information, QStringLiteral("Save %1").arg(words.One),
                QStringLiteral("The %1 is saved to the filename:\r\n\r\n").arg(words.One) + path->Full());
}

void CreateImages(Workshop& workshop, ShownRun& run, CardKind kind)
{
    {
        const HourglassScope hourglass(run.User);
        SaveImages(workshop, run, kind);
    }
    const KindWords& words = WordsOf(kind);
    ShowCreated(run.User, CreateTitle(kind, "cards"), CountOf(workshop.Set, kind), words.One, words.Several);
}

void CreateSheets(Workshop& workshop, ShownRun& run, CardKind kind, std::optional<SheetGrid> grid)
{
    int16 number = 0;
    if (grid) {
        const HourglassScope hourglass(run.User);
        number = SaveSheets(workshop, run, kind, *grid);
    }
    const QString sheet = WordsOf(kind).One + QStringLiteral("sheet");
    ShowCreated(run.User, CreateTitle(kind, "cardsheets"), number, sheet, sheet + QLatin1Char('s'));
}

bool CreateHtml(const CardSet& set, ShownRun& run, HtmlPages pages)
{
    struct Words {
        const char* Cards;
        const char* Sheet;
    };
    static constexpr Words words[] = {{"cards", "HTML sheet"},
                                      {"large cards", "large HTML sheet"},
                                      {"character cards", "character HTML sheet"},
                                      {"character cards", "character playing piece HTML sheet"}};
    const Words& shown = words[static_cast<std::size_t>(pages)];
    const std::optional<int> count = WriteHtml(set, run, pages);
    if (!count) {
        ShowBox(run.User, BoxStyle::Exclamation, "Missing information",
                QStringLiteral("Some %1 are missing their filenames. Please save all %1 before creating the "
                               "HTML sheets.")
                    .arg(shown.Cards));
        return false;
    }
    const QString sheet = shown.Sheet;
    ShowCreated(run.User, "Save HTML", *count, sheet, sheet + QLatin1Char('s'));
    return true;
}

void ExportCardBacks(const CardSet& set, BuiltInArt& art, UserPort& user)
{
    const std::optional<QString> folder = user.BrowseForFolder();
    if (!folder)
        return;
    WriteCardBacks(set, art, *folder);
    ShowBox(user, BoxStyle::Information, "Export", QStringLiteral("All card backs are exported."));
}

void PrintCard(Workshop& workshop, ShownRun& run, PrintedPage page)
{
    const auto printer = run.User.OpenPrinter(PageTitle(workshop.Set, page));
    if (!printer)
        throw RunTimeError(ErrorNumber::PrinterError);
    PrintPage(workshop, run, page, *printer);
    ShowBox(run.User, BoxStyle::Information, "Print", QStringLiteral("Printing done!"));
}

void ShowStatistics(const CardSet& set, UserPort& user)
{
    ShowBox(user, BoxStyle::Information, "Statistics", StatisticsText(set));
}

} // namespace deckforge
