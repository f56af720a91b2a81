// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/SetWriter.h"

#include "platform/CodePage.h"
#include "platform/Numbers.h"
#include "platform/RunTimeError.h"

namespace deckforge {

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

void SetWriter::Text(const QString& text, setFile::Since /*since*/, const QString& /*before*/)
{
    if (m_unwritable == Unwritable::Fail && text.contains(QLatin1String(setFile::LineEnd))) {
        throw RunTimeError(ErrorNumber::InvalidCall,
                           QStringLiteral("The text \"%1\" holds a line break").arg(text));
    }
    Line(QString(text).replace(QLatin1String(setFile::LineEnd), QLatin1String(" ")));
}

void SetWriter::Flattened(const QString& text)
{
    Line(QString(text).replace(QLatin1String(setFile::LineEnd), QString(setFile::FlattenedBreak)));
}

void SetWriter::Integer(int32 value, setFile::Since /*since*/, int32 /*before*/)
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
