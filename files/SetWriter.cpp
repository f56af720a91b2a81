// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/SetWriter.h"

#include "platform/CodePage.h"
#include "platform/Numbers.h"
#include "platform/RunTimeError.h"

#include <cstring>

namespace deckforge {

namespace {

/// Replaces every line break behind `start` by one character, in a single pass.
void FlattenFrom(QByteArray& bytes, qsizetype start, char flattened)
{
    qsizetype write = start;
    for (qsizetype read = start; read < bytes.size();) {
        const QByteArrayView rest = QByteArrayView(bytes).sliced(read);
        const qsizetype lineEnd = setFile::FindLineEnd(rest);
        const qsizetype length = lineEnd < 0 ? rest.size() : lineEnd;
        if (write != read)
            std::memmove(bytes.data() + write, rest.data(), static_cast<std::size_t>(length));
        write += length;
        read += length;
        if (lineEnd >= 0) {
            bytes[write++] = flattened;
            read += sizeof(setFile::LineEnd) - 1;
        }
    }
    bytes.truncate(write);
}

} // namespace

void SetWriter::Literal(const char* text)
{
    m_bytes.append(text);
    EndLine();
}

/// Returns the position of the text.
qsizetype SetWriter::AppendText(const QString& text)
{
    const qsizetype start = m_bytes.size();
    AppendInCodePage(m_bytes, text,
                     m_unwritable == Unwritable::Replace ? Unencodable::QuestionMark : Unencodable::Reject);
    return start;
}

/// Ends the line that begins at `start`, after checking its length.
void SetWriter::EndText(qsizetype start)
{
    if (m_bytes.size() - start > setFile::MaxLineBytes) {
        const bool mayCut = m_unwritable == Unwritable::Replace;
        m_bytes.truncate(mayCut ? start + setFile::MaxLineBytes : start);
        if (!mayCut)
            setFile::ThrowLongLine();
    }
    EndLine();
}

void SetWriter::Text(const QString& text)
{
    const qsizetype start = AppendText(text);
    if (m_unwritable == Unwritable::Replace) {
        FlattenFrom(m_bytes, start, ' ');
    } else if (setFile::FindLineEnd(QByteArrayView(m_bytes).sliced(start)) >= 0) {
        m_bytes.truncate(start);
        throw RunTimeError(ErrorNumber::InvalidCall,
                           QStringLiteral("The text \"%1\" holds a line break").arg(text));
    }
    EndText(start);
}

void SetWriter::Flattened(const QString& text)
{
    const qsizetype start = AppendText(text);
    FlattenFrom(m_bytes, start, setFile::FlattenedBreak);
    EndText(start);
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
