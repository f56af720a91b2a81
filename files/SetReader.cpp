#include "files/SetReader.h"

#include "files/SetFileFormat.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/RunTimeError.h"

namespace deckforge {

SetReader::SetReader(const QString& path) : m_bytes(ReadWholeFile(path, setFile::MostBytes)) {}

QByteArrayView SetReader::Line()
{
    if (m_at >= m_bytes.size())
        throw RunTimeError(ErrorNumber::InputPastEnd);
    const QByteArrayView rest = QByteArrayView(m_bytes).sliced(m_at);
    const qsizetype end = setFile::FindLineEnd(rest);
    const QByteArrayView line = end < 0 ? rest : rest.first(end);
    if (line.size() > setFile::MostLineBytes)
        setFile::RefuseLongLine();
    m_at += end < 0 ? rest.size() : end + 2;
    return line;
}

QString SetReader::Text()
{
    const QByteArrayView line = Line();
    return line.isEmpty() ? QString() : FromCodePage(line);
}

QString SetReader::Flattened()
{
    const QByteArrayView line = Line();
    const qsizetype breaks = line.count(setFile::FlattenedBreak);
    if (breaks == 0)
        return line.isEmpty() ? QString() : FromCodePage(line);
    QByteArray lines;
    lines.reserve(line.size() + breaks);
    for (const char c : line) {
        if (c == setFile::FlattenedBreak)
            lines.append(setFile::LineEnd);
        else
            lines.append(c);
    }
    return FromCodePage(lines);
}

bool SetReader::Boolean()
{
    return BooleanFromText(Line());
}

int16 SetReader::Int16()
{
    return ToInt16(NumberFromText(Line()));
}

int32 SetReader::Int32()
{
    return ToInt32(NumberFromText(Line()));
}

double SetReader::Real()
{
    return NumberFromText(Line());
}

} // namespace deckforge
