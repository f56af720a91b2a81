// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/SetReader.h"

#include "files/SetFileFormat.h"
#include "platform/CodePage.h"
#include "platform/Numbers.h"
#include "platform/RunTimeError.h"

namespace deckforge {

SetReader::SetReader(QByteArray bytes, Texts texts)
    : m_bytes(std::move(bytes)), m_skipsTexts(texts == Texts::Skip),
      m_hasBareLineEnds(setFile::FindLineEnd(m_bytes) < 0)
{
    if (m_bytes.size() > setFile::MaxBytes)
        throw RunTimeError(ErrorNumber::OutOfMemory);
}

QByteArrayView SetReader::Line()
{
    ++m_lineNumber;
    if (m_at >= m_bytes.size())
        throw RunTimeError(ErrorNumber::InputPastEnd);
    const QByteArrayView rest = QByteArrayView(m_bytes).sliced(m_at);
    const qsizetype end = m_hasBareLineEnds ? rest.indexOf('\n') : setFile::FindLineEnd(rest);
    const QByteArrayView line = end < 0 ? rest : rest.first(end);
    if (line.size() > setFile::MaxLineBytes)
        setFile::ThrowLongLine();
    m_at += end < 0 ? rest.size() : end + (m_hasBareLineEnds ? 1 : 2);
    return line;
}

QString SetReader::Text()
{
    const QByteArrayView line = Line();
    return line.isEmpty() || m_skipsTexts ? QString() : FromCodePage(line);
}

QString SetReader::Flattened()
{
    QByteArrayView rest = Line();
    if (m_skipsTexts)
        return {};
    QByteArray lines;
    for (qsizetype end = 0; (end = rest.indexOf(setFile::FlattenedBreak)) >= 0; rest = rest.sliced(end + 1)) {
        lines.append(rest.first(end));
        lines.append(setFile::LineEnd, sizeof(setFile::LineEnd) - 1);
    }
    if (lines.isEmpty())
        return rest.isEmpty() ? QString() : FromCodePage(rest);
    return FromCodePage(lines.append(rest));
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
