#include "files/SetWriter.h"

#include "files/SetFileFormat.h"
#include "platform/CodePage.h"
#include "platform/Numbers.h"
#include "platform/RunTimeError.h"

#include <QScopeGuard>
#include <cstring>

namespace deckforge {

namespace {

constexpr qsizetype PieceBytes = 1 << 18;
constexpr qsizetype RoomForOneLine = 1 << 12;

} // namespace

SetWriter::SetWriter(const QString& path) : m_file(path)
{
    m_gathered.reserve(PieceBytes + RoomForOneLine);
}

SetWriter::~SetWriter()
{
    try {
        Flush();
    } catch (const RunTimeError&) {
        // The failure that ended the writing is already told; this one adds nothing to it.
    }
}

void SetWriter::Literal(const char* text)
{
    m_gathered.append(text);
    EndLine();
}

void SetWriter::Text(const QString& text)
{
    const qsizetype start = m_gathered.size();
    AppendInCodePage(m_gathered, text);
    if (setFile::FindLineEnd(QByteArrayView(m_gathered).sliced(start)) >= 0) {
        m_gathered.truncate(start);
        throw RunTimeError(ErrorNumber::InvalidCall,
                           QStringLiteral("The text \"%1\" holds a line break").arg(text));
    }
    EndLine();
}

void SetWriter::Flattened(const QString& text)
{
    const qsizetype start = m_gathered.size();
    AppendInCodePage(m_gathered, text);
    // In one pass: what stands behind a line break moves down over it.
    qsizetype write = start;
    for (qsizetype read = start; read < m_gathered.size();) {
        const QByteArrayView rest = QByteArrayView(m_gathered).sliced(read);
        const qsizetype lineEnd = setFile::FindLineEnd(rest);
        const qsizetype length = lineEnd < 0 ? rest.size() : lineEnd;
        if (write != read)
            std::memmove(m_gathered.data() + write, rest.data(), static_cast<std::size_t>(length));
        write += length;
        read += length;
        if (lineEnd >= 0) {
            m_gathered[write++] = setFile::FlattenedBreak;
            read += sizeof(setFile::LineEnd) - 1;
        }
    }
    m_gathered.truncate(write);
    EndLine();
}

void SetWriter::Boolean(bool value)
{
    Literal(value ? "True" : "False");
}

void SetWriter::Integer(int32 value)
{
    AppendNumber(m_gathered, value);
    EndLine();
}

void SetWriter::Real(double value)
{
    AppendNumber(m_gathered, value);
    EndLine();
}

void SetWriter::Close()
{
    Flush();
    m_file.CloseOnDisk();
}

void SetWriter::EndLine()
{
    m_gathered.append(setFile::LineEnd, 2);
    if (m_gathered.size() >= PieceBytes)
        Flush();
}

void SetWriter::Flush()
{
    // Also when it fails: what was written in part must not be written again.
    const auto clear = qScopeGuard([this] { m_gathered.resize(0); });
    m_file.Write(m_gathered);
}

} // namespace deckforge
