// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/SetWriter.h"

#include "platform/CodePage.h"
#include "platform/Numbers.h"
#include "platform/RunTimeError.h"

#include <QStringList>

namespace deckforge {

namespace {

QString JoinedLines(const QString& text, char separator)
{
    const QLatin1String lineEnd(setFile::LineEnd);
    return text.contains(lineEnd) ? text.split(lineEnd).join(QLatin1Char(separator)) : text;
}

} // namespace

void SetWriter::Literal(const char* text)
{
    m_bytes.append(text);
    EndLine();
}

void SetWriter::Line(const QString& text)
{
    const qsizetype start = m_bytes.size();
    const bool canReplace = m_unwritable == Unwritable::Replace;
    AppendInCodePage(m_bytes, text, canReplace ? Unencodable::QuestionMark : Unencodable::Reject);
    if (m_bytes.size() - start > setFile::MaxLineBytes) {
        if (!canReplace)
            setFile::ThrowLongLine();
        m_bytes.truncate(start + setFile::MaxLineBytes);
    }
    EndLine();
}

void SetWriter::Text(const QString& text)
{
    if (m_unwritable == Unwritable::Fail && text.contains(QLatin1String(setFile::LineEnd))) {
        throw RunTimeError(ErrorNumber::InvalidCall,
                           QStringLiteral("The text \"%1\" holds a line break").arg(text));
    }
    Line(JoinedLines(text, ' '));
}

void SetWriter::Flattened(const QString& text)
{
    Line(JoinedLines(text, setFile::FlattenedBreak));
}

void SetWriter::Boolean(bool value)
{
    Literal(value ? "True" : "False");
}

void SetWriter::Integer(int32 value)
{
    AppendNumber(m_bytes, value);
    EndLine();
}

void SetWriter::Real(double value)
{
    AppendNumber(m_bytes, value);
    EndLine();
}

} // namespace deckforge
