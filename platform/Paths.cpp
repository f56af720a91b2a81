// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Paths.h"

#include <QDir>
#include <QStandardPaths>

namespace deckforge {

namespace {

bool IsSeparator(QChar c)
{
    return c == QLatin1Char('\\') || c == QLatin1Char('/');
}

/// The length of the folder part, with its separator.
qsizetype FolderLength(const QString& path)
{
    qsizetype length = path.size();
    while (length > 0 && !IsSeparator(path[length - 1]))
        --length;
    return length;
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
    if (!folder.isEmpty() && IsSeparator(folder.back()))
        return folder;
    return folder + QDir::separator();
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
