// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/StoredPath.h"

#include "platform/CodePage.h"

#include <QUrl>

namespace deckforge {

namespace {

constexpr char Scheme[] = "file://";

bool FitsInLine(const QString& path)
{
    return IsInCodePage(path) && !(path.contains(u'\r') && path.contains(QLatin1String("\r\n")));
}

QString AddressOf(const QString& path)
{
    return QLatin1String(Scheme) + QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
}

} // namespace

QString StoredPath(const QString& path)
{
    return FitsInLine(path) ? path : AddressOf(path);
}

QString PathFromStored(const QString& text)
{
    if (!text.startsWith(QLatin1String(Scheme)))
        return text;
    const QString path = QUrl::fromPercentEncoding(text.sliced(sizeof Scheme - 1).toLatin1());
    const bool isAddress = !FitsInLine(path) && AddressOf(path) == text;
    return isAddress ? path : text;
}

} // namespace deckforge
