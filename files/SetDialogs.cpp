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
    const std::optional<QString> path = user.AskSaveFile(SetFileDialog("Save Card Set", set.Header.FileName));
    if (!path)
        return SaveResult::Cancelled;
    set.Header.FileName = *path; // first, so that the path stands in the very file that is written
    return WriteDKF(set, *path, user, Report::Tell) ? SaveResult::Saved : SaveResult::Failed;
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
