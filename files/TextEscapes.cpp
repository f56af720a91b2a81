// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/TextEscapes.h"

#include "files/SetFileFormat.h"
#include "platform/CodePage.h"

#include <QRegularExpression>

namespace deckforge {

namespace {

constexpr QLatin1String Opening("\\u{");
constexpr int Hexadecimal = 16;

QString Escape(char32_t character)
{
    return Opening + QString::number(uint{character}, Hexadecimal).toUpper() + QLatin1Char('}');
}

} // namespace

QString Escaped(const QString& text)
{
    const QLatin1String lineEnd(setFile::LineEnd);
    // Nearly all texts need nothing, and single characters are found fast.
    const bool hasOpening = text.contains(QLatin1Char('\\')) && text.contains(Opening);
    const bool hasLineEnd = text.contains(QLatin1Char('\r')) && text.contains(lineEnd);
    if (IsInCodePage(text) && !hasOpening && !hasLineEnd)
        return text;
    QString escaped;
    const QString plain = QString(text)
                              .replace(Opening, Escape(U'\\') + Opening.sliced(1))
                              .replace(lineEnd, Escape(U'\r') + Escape(U'\n'));
    for (const char32_t character : plain.toUcs4()) {
        const QString letter = QString::fromUcs4(&character, 1);
        escaped += IsInCodePage(letter) ? letter : Escape(character);
    }
    return escaped;
}

QString Unescaped(const QString& text)
{
    if (!text.contains(Opening))
        return text;
    static const QRegularExpression escape(QStringLiteral("\\\\u\\{([0-9A-Fa-f]{1,6})\\}"));
    QString unescaped;
    qsizetype end = 0;
    for (auto found = escape.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const char32_t character = match.captured(1).toUInt(nullptr, Hexadecimal);
        if (character > QChar::LastValidCodePoint)
            continue;
        unescaped += text.sliced(end, match.capturedStart() - end) + QString::fromUcs4(&character, 1);
        end = match.capturedEnd();
    }
    return unescaped + text.sliced(end);
}

} // namespace deckforge
