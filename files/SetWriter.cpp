// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/SetWriter.h"

#include "files/TextEscapes.h"
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
    AppendInCodePage(m_bytes, text);
    if (m_bytes.size() - start > setFile::MaxLineBytes) {
        if (m_unwritable == Unwritable::Fail)
            setFile::ThrowLongLine();
        m_bytes.truncate(start + setFile::MaxLineBytes);
    }
    EndLine();
}

void SetWriter::Text(const QString& text, setFile::Since /*since*/, const QString& /*before*/)
{
    Line(Escaped(text));
}

void SetWriter::Flattened(const QString& text)
{
    Line(Escaped(QString(text).replace(QLatin1String(setFile::LineEnd), QString(setFile::FlattenedBreak))));
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
