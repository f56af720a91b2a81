// SPDX-License-Identifier: GPL-3.0-or-later

#include "commands/OutputCommands.h"

#include "output/Statistics.h"
#include "output/modCapture.h"

#include <QPagedPaintDevice>

namespace deckforge {

namespace {

/// Texts of the dialogs and message boxes. User-designed backs have only those for saving one.
/// Kept: some titles for characters are those of large cards.
struct KindTexts {
    const char* SaveTitle;
    const char* SavedTitle;
    const char* Saved;
    const char* ImagesTitle = nullptr;
    const char* OneImage = nullptr;
    const char* Images = nullptr;
    const char* SheetsTitle = nullptr;
    const char* OneSheet = nullptr;
    const char* Sheets = nullptr;
};

const KindTexts& TextsOf(CardKind kind)
{
    static constexpr KindTexts texts[] = {{.SaveTitle = "Save Card",
                                           .SavedTitle = "Save card",
                                           .Saved = "The card is saved to the filename:",
                                           .ImagesTitle = "Create cards",
                                           .OneImage = " card is created.",
                                           .Images = " cards are created.",
                                           .SheetsTitle = "Create cardsheets",
                                           .OneSheet = " cardsheet is created.",
                                           .Sheets = " cardsheets are created."},
                                          {.SaveTitle = "Save Large Card",
                                           .SavedTitle = "Save large card",
                                           .Saved = "The large card is saved to the filename:",
                                           .ImagesTitle = "Create large cards",
                                           .OneImage = " large card is created.",
                                           .Images = " large cards are created.",
                                           .SheetsTitle = "Create large cardsheets",
                                           .OneSheet = " large cardsheet is created.",
                                           .Sheets = " large cardsheets are created."},
                                          {.SaveTitle = "Save Character Card",
                                           .SavedTitle = "Save character card",
                                           .Saved = "The character card is saved to the filename:",
                                           .ImagesTitle = "Create large cards",
                                           .OneImage = " character card is created.",
                                           .Images = " characters cards are created.",
                                           .SheetsTitle = "Create large cardsheets",
                                           .OneSheet = " character cardsheet is created.",
                                           .Sheets = " character cardsheets are created."},
                                          {.SaveTitle = "Save New Card Back",
                                           .SavedTitle = "Save card",
                                           .Saved = "The card is saved to the filename:"}};
    return texts[static_cast<std::size_t>(kind)];
}

struct HtmlTexts {
    const char* Missing;
    const char* OnePage;
    const char* Pages;
};

const HtmlTexts& TextsOf(HtmlPages pages)
{
    static constexpr char missingCharacters[] =
        "Some character cards are missing their filenames. Please save all "
        "character cards before creating the HTML sheets.";
    static constexpr HtmlTexts texts[] = {
        {.Missing = "Some cards are missing their filenames. Please save all cards before creating the HTML "
                    "sheets.",
         .OnePage = "1 HTML sheet is created.",
         .Pages = " HTML sheets are created."},
        {.Missing =
             "Some large cards are missing their filenames. Please save all large cards before creating "
             "the HTML sheets.",
         .OnePage = "1 large HTML sheet is created.",
         .Pages = " large HTML sheets are created."},
        {.Missing = missingCharacters,
         .OnePage = "1 character HTML sheet is created.",
         .Pages = " character HTML sheets are created."},
        {.Missing = missingCharacters,
         .OnePage = "1 character playing piece HTML sheet is created.",
         .Pages = " character playing piece HTML sheets are created."}};
    return texts[static_cast<std::size_t>(pages)];
}

/// "1 card is created.", "2 cards are created."
void ShowCreated(UserPort& user, const char* title, int count, const char* one, const char* others)
{
    ShowBox(user, BoxStyle::Information, title,
            QString::number(count) + QLatin1String(count == 1 ? one : others));
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
    const KindTexts& texts = TextsOf(kind);
    const auto chosen = run.User.AskSaveFile(
        ImageDialog(texts.SaveTitle, NameOf(set, kind, index), ImageExtension(set.Header.SaveFormat)));
    if (!chosen)
        return;
    if (const auto path = SaveImage(workshop, run, kind, index, {.Chosen = *chosen}))
        ShowBox(run.User, BoxStyle::Information, texts.SavedTitle,
                QLatin1String(texts.Saved) + QStringLiteral("\r\n\r\n") + path->Full());
}

void CreateImages(Workshop& workshop, ShownRun& run, CardKind kind)
{
    {
        const HourglassScope hourglass(run.User);
        SaveImages(workshop, run, kind);
    }
    const KindTexts& texts = TextsOf(kind);
    ShowCreated(run.User, texts.ImagesTitle, CountOf(workshop.Set, kind), texts.OneImage, texts.Images);
}

void CreateSheets(Workshop& workshop, ShownRun& run, CardKind kind, std::optional<SheetGrid> grid)
{
    int16 number = 0;
    if (grid) {
        const HourglassScope hourglass(run.User);
        number = SaveSheets(workshop, run, kind, *grid);
    }
    const KindTexts& texts = TextsOf(kind);
    ShowCreated(run.User, texts.SheetsTitle, number, texts.OneSheet, texts.Sheets);
}

bool CreateHtml(const CardSet& set, ShownRun& run, HtmlPages pages)
{
    const HtmlTexts& texts = TextsOf(pages);
    const std::optional<int> count = WriteHtml(set, run, pages);
    if (!count) {
        ShowBox(run.User, BoxStyle::Exclamation, "Missing information", QString::fromLatin1(texts.Missing));
        return false;
    }
    ShowBox(run.User, BoxStyle::Information, "Save HTML",
            *count == 1 ? QString::fromLatin1(texts.OnePage)
                        : QString::number(*count) + QLatin1String(texts.Pages));
    return true;
}

void ExportCardBacks(Workshop& workshop, UserPort& user)
{
    const std::optional<QString> folder = user.BrowseForFolder();
    if (!folder)
        return;
    WriteCardBacks(workshop, *folder);
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
