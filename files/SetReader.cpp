// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/SetReader.h"

#include "files/StoredPath.h"
#include "files/TextEscapes.h"
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

int16 SetReader::Count()
{
    return ToInt16(NumberFromText(Line()));
}

void SetReader::Text(QString& field, setFile::Since since, const QString& before)
{
    if (!Has(since)) {
        field = before;
        return;
    }
    const QByteArrayView line = Line();
    field = line.isEmpty() || m_skipsTexts ? QString() : Unescaped(FromCodePage(line));
}

void SetReader::Flattened(QString& field)
{
    QByteArrayView rest = Line();
    field.clear();
    if (m_skipsTexts)
        return;
    QByteArray lines;
    for (qsizetype end = 0; (end = rest.indexOf(setFile::FlattenedBreak)) >= 0; rest = rest.sliced(end + 1))
        lines.append(rest.first(end)).append(setFile::LineEnd, sizeof(setFile::LineEnd) - 1);
    field = Unescaped(FromCodePage(lines.append(rest)));
}

void SetReader::Path(QString& field)
{
    field = m_skipsTexts ? (Line(), QString()) : PathFromStored(FromCodePage(Line()));
}

void SetReader::Boolean(bool& field, setFile::Since since)
{
    field = Has(since) && BooleanFromText(Line());
}

void SetReader::Integer(int16& field, setFile::Since since, int16 before)
{
    field = Has(since) ? ToInt16(NumberFromText(Line())) : before;
}

void SetReader::Integer(int32& field, setFile::Since since, int32 before)
{
    field = Has(since) ? ToInt32(NumberFromText(Line())) : before;
}

void SetReader::Real(double& field)
{
    field = NumberFromText(Line());
}

} // namespace deckforge
