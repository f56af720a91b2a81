// SPDX-License-Identifier: GPL-3.0-or-later

#include "commands/SetCommands.h"

#include "files/modFile.h"

namespace deckforge {

namespace {

FileDialogRequest SetFileDialog(const char* title, const QString& fileName)
{
    return {.Title = QString::fromLatin1(title),
            .FileName = fileName,
            .Filter = QStringLiteral("All files(*.*)|*.*|Deck Foundry (*.dkf)|*.dkf"),
            .DefaultExtension = QStringLiteral("dkf")};
}

void ShowRejection(UserPort& user, const QString& path, ReadOutcome::Rejection rejection)
{
    if (rejection == ReadOutcome::Rejection::NoCardSet) {
        ShowBox(user, BoxStyle::Critical, "Open File Error",
                QStringLiteral("This is not a correct card set file."));
    } else {
        ShowBox(
            user, BoxStyle::Information, "Version conflict",
            QStringLiteral(
                "The set you are opening is from a newer version.\r\nIt can not be opened in this version."));
    }
    user.ReportProblems({path + QStringLiteral(": Not a card set of this version")});
}

void ShowReadFailure(UserPort& user, const RunTimeError& error)
{
    ShowBox(user, BoxStyle::Critical, "Error",
            QStringLiteral("Error while opening the Varnhelm Card Set.\r\n\r\n") +
                error.NumberAndDescription());
    user.ReportProblems({error.PlaceAndDescription()});
}

/// An interrupted save may have left a file that can be read but mixes both sets.
void ShowSafetyCopies(UserPort& user, const QStringList& copies)
{
    ShowBox(user, BoxStyle::Exclamation, "Open file",
            QStringLiteral("A save of this file was cut off. What it held before is in\r\n\r\n%1"
                           "\r\n\r\nIf anything is missing here, open that file and save it "
                           "under this name. Delete it when all is well.")
                .arg(copies.join(QLatin1String("\r\n"))));
}

/// Runs `write` and shows the failure, or the message `written`.
template <class Write>
bool WriteAndShow(UserPort& user, const char* title, const QString& written, Write&& write)
{
    try {
        WithMemoryAsFailure(write);
    } catch (const RunTimeError& error) {
        ShowNotSaved(user, error);
        return false;
    }
    ShowBox(user, BoxStyle::Information, title, written);
    return true;
}

} // namespace

bool OpenSet(CardSet& set, const QString& path, UserPort& user)
{
    const ReadOutcome outcome = ReadDKF(set, path);
    if (outcome.IsConverted) {
        ShowBox(
            user, BoxStyle::Information, "Converting",
            QStringLiteral("The set you are opening is of an older version.\r\nIt will now be converted to "
                           "the new version."));
    }
    if (outcome.Rejected != ReadOutcome::Rejection::None)
        ShowRejection(user, path, outcome.Rejected);
    if (outcome.Failure)
        ShowReadFailure(user, *outcome.Failure);
    if (!outcome.UnmatchedEnd.isEmpty()) {
        ShowBox(user, BoxStyle::Question, "Error", QStringLiteral("No final match!"));
        user.ReportProblems({outcome.UnmatchedEnd + QStringLiteral(": No final match!")});
    }
    if (outcome.IsRead())
        ShowBox(user, BoxStyle::Information, "Open file", QStringLiteral("The card set is loaded."));
    if (!outcome.SafetyCopies.isEmpty())
        ShowSafetyCopies(user, outcome.SafetyCopies);
    return outcome.IsRead();
}

bool WriteSet(const CardSet& set, const QString& path, UserPort& user)
{
    return WriteAndShow(user, "Save file", QStringLiteral("The card set is saved."),
                        [&] { WriteDKF(set, path); });
}

SaveResult SaveSet(CardSet& set, UserPort& user)
{
    FileDialogRequest request =
        SetFileDialog("Save Card Set", set.File ? set.File->Path : set.Header.FileName);
    if (set.File)
        request.Known = set.File->Attributes;
    const std::optional<QString> path = user.AskSaveFile(request);
    if (!path)
        return SaveResult::Cancelled;
    set.Header.FileName = *path; // before writing: the file contains the path
    set.File.reset();            // after a failure Header.FileName is proposed
    if (!WriteSet(set, *path, user))
        return SaveResult::Failed;
    set.File = {*path, AttributesOf(*path).value_or(FileAttributes{})};
    return SaveResult::Saved;
}

std::optional<QString> AskSetToOpen(UserPort& user)
{
    return user.AskOpenFile(SetFileDialog("Open card template", {}));
}

bool WriteListing(const CardSet& set, const QString& path, UserPort& user)
{
    return WriteAndShow(user, "Save text", QStringLiteral("The card set text is exported."),
                        [&] { ExportSetText(set, path); });
}

void ExportText(const CardSet& set, UserPort& user)
{
    const std::optional<QString> path =
        user.AskSaveFile({.Title = QStringLiteral("Save set as text"),
                          .FileName = set.Header.SetName + QStringLiteral(".txt"),
                          .Filter = QStringLiteral("All files(*.*)|*.*|Text file (*.txt)|*.txt"),
                          .DefaultExtension = QStringLiteral("txt")});
    if (path)
        WriteListing(set, *path, user);
}

void ShowNotSaved(UserPort& user, const RunTimeError& error)
{
    ShowBox(user, BoxStyle::Critical, "Error",
            QStringLiteral("The file is NOT saved due to an error.\r\n\r\n") + error.NumberAndDescription());
}

bool MayDelete(UserPort& user, CardKind kind, int16 count, const QString& name)
{
    if (count < 2) {
        if (kind == CardKind::Standard) {
            ShowBox(user, BoxStyle::Information, "",
                    QStringLiteral("You have only one card in your set. This can't be deleted."));
        }
        return false;
    }
    // Kept: a large card is called a card here.
    static constexpr const char* names[] = {"card", "card", "character", "card back"};
    const Answer answer =
        user.ShowMessage({.Text = QStringLiteral("Are you sure you want to delete the %1 \"%2\"?")
                                      .arg(names[static_cast<std::size_t>(kind)], name),
                          .Title = QStringLiteral("Confirm delete"),
                          .Style = BoxStyle::Question,
                          .Buttons = BoxButtons::YesNo});
    return answer == Answer::Yes;
}

void ShowCopied(UserPort& user, CardKind kind)
{
    static constexpr const char* names[] = {"card", "large card", "character card", "card back"};
    ShowBox(user, BoxStyle::Information, "Copy",
            QStringLiteral("The %1 is copied.").arg(names[static_cast<std::size_t>(kind)]));
}

} // namespace deckforge
