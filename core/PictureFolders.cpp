// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/PictureFolders.h"

#include "platform/Paths.h"

#include <QFileInfo>

namespace deckforge {

namespace {

/// With a name that cannot lead out of the folder.
QString PicturesIn(const QString& folder, QString name)
{
    for (const char separator : {'/', '\\'})
        name.replace(QLatin1Char(separator), QLatin1Char('_'));
    return folder + name + QStringLiteral(" pictures/");
}

} // namespace

QString PicturesFolder(const CardSet& set)
{
    return PicturesIn(set.File ? FolderPart(set.File->Path) : ProgramFolder(), set.Header.SetName);
}

QStringList FoldersOfPictures(const CardSet& set)
{
    if (!set.File)
        return {PicturesFolder(set)};
    const QString folder = FolderPart(set.File->Path);
    return {folder, PicturesFolder(set), PicturesIn(folder, QFileInfo(set.File->Path).completeBaseName())};
}

} // namespace deckforge
