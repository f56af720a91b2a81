// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Paths.h"

#include <QDir>
#include <QStandardPaths>
#include <algorithm>

namespace deckforge {

namespace {

/// The length of the folder part, with its separator.
qsizetype FolderLength(const QString& path)
{
    return std::max(path.lastIndexOf(QLatin1Char('\\')), path.lastIndexOf(QLatin1Char('/'))) + 1;
}

} // namespace

QString NamePart(const QString& path)
{
    return path.mid(FolderLength(path));
}

QString FolderPart(const QString& path)
{
    return path.left(FolderLength(path));
}

bool HoldsSeparator(const QString& text)
{
    return FolderLength(text) > 0;
}

QString WithSeparator(const QString& folder)
{
    const bool hasSeparator = !folder.isEmpty() && FolderLength(folder) == folder.size();
    return hasSeparator ? folder : folder + QDir::separator();
}

QString PathToOpen(QString path)
{
    if (QDir::separator() == QLatin1Char('/'))
        path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return path;
}

QString ProgramFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = WithSeparator(documents) + QStringLiteral("Varnhelm Deck Forge");
    QDir().mkpath(folder);
    return WithSeparator(folder);
}

} // namespace deckforge
