#include "files/SetReader.h"

#include "files/SetFileFormat.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/RunTimeError.h"

namespace deckforge {

namespace {

/// The largest set, 32,767 of each kind with pages of text on each card, is far below this.
constexpr qint64 MostBytes = qint64(1) << 30;

} // namespace

SetReader::SetReader(const QString& path) : m_bytes(ReadWholeFile(path, MostBytes)) {}

QByteArrayView SetReader::Line()
{
    if (m_at >= m_bytes.size())
        throw RunTimeError(ErrorNumber::InputPastEnd);
    const QByteArrayView rest = QByteArrayView(m_bytes).sliced(m_at);
    const qsizetype end = setFile::FindLineEnd(rest);
    if (end < 0) {
        m_at = m_bytes.size();
        return rest;
    }
    m_at += end + 2;
    return rest.first(end);
}

QString SetReader::Text()
{
    const QByteArrayView line = Line();
    return line.isEmpty() ? QString() : FromCodePage(line);
}

QString SetReader::Flattened()
{
    return Text().replace(QLatin1Char(setFile::FlattenedBreak), QLatin1String(setFile::LineEnd));
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
