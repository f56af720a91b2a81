#include "files/modFile.h"

namespace deckforge {

namespace {

FileDialogRequest SetFileDialog(const char* title, const QString& fileName)
{
    return {.Title = QString::fromLatin1(title),
            .FileName = fileName,
            .Filter = QStringLiteral("All files(*.*)|*.*|Deck Foundry (*.dkf)|*.dkf"),
            .FilterIndex = 2,
            .DefaultExtension = QStringLiteral("dkf"),
            .Folder = {}};
}

} // namespace

SaveResult SaveSet(CardSet& set, UserPort& user)
{
    FileDialogRequest request =
        SetFileDialog("Save Card Set", set.File ? set.File->Path : set.Header.FileName);
    if (set.File)
        request.Known = set.File->Attributes;
    const std::optional<QString> path = user.AskSaveFile(request);
    if (!path)
        return SaveResult::Cancelled;
    set.Header.FileName = *path; // first, so that the path is in the very file that is written
    set.File.reset();            // after a failure the path is proposed again
    if (!WriteDKF(set, *path, user, Report::Tell))
        return SaveResult::Failed;
    set.File = {*path, AttributesOf(*path).value_or(FileAttributes{})};
    return SaveResult::Saved;
}

std::optional<QString> AskSetToOpen(UserPort& user)
{
    return user.AskOpenFile(SetFileDialog("Open card template", {}));
}

void ExportText(const CardSet& set, UserPort& user)
{
    const std::optional<QString> path =
        user.AskSaveFile({.Title = QStringLiteral("Save set as text"),
                          .FileName = set.Header.SetName + QStringLiteral(".txt"),
                          .Filter = QStringLiteral("All files(*.*)|*.*|Text file (*.txt)|*.txt"),
                          .FilterIndex = 2,
                          .DefaultExtension = QStringLiteral("txt"),
                          .Folder = {}});
    if (path)
        ExportSetText(set, *path, user);
}

} // namespace deckforge
