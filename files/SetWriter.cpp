#include "files/SetWriter.h"

#include "files/SetFileFormat.h"
#include "platform/CodePage.h"
#include "platform/Numbers.h"
#include "platform/RunTimeError.h"

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
    qsizetype at = start;
    for (;;) {
        const qsizetype lineEnd = setFile::FindLineEnd(QByteArrayView(m_gathered).sliced(at));
        if (lineEnd < 0)
            break;
        at += lineEnd;
        m_gathered.replace(at, sizeof(setFile::LineEnd) - 1, QByteArrayView(&setFile::FlattenedBreak, 1));
    }
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
    m_file.Close();
}

void SetWriter::EndLine()
{
    m_gathered.append(setFile::LineEnd, 2);
    if (m_gathered.size() >= PieceBytes)
        Flush();
}

void SetWriter::Flush()
{
    const QByteArrayView bytes(m_gathered);
    m_file.Write(bytes);
    m_gathered.resize(0); // keeps the room
}

} // namespace deckforge
