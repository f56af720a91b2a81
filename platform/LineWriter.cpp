// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LineWriter.h"

#include "platform/CodePage.h"
#include "platform/RunTimeError.h"

#include <QScopeGuard>

namespace deckforge {

namespace {

constexpr qsizetype PieceBytes = 1 << 18;
constexpr qsizetype RoomForOneLine = 1 << 12;

} // namespace

LineWriter::LineWriter(const QString& path) : m_file(path)
{
    m_gathered.reserve(PieceBytes + RoomForOneLine);
}

LineWriter::~LineWriter()
{
    try {
        Flush();
    } catch (const RunTimeError&) {
        // The failure that ended the writing has been reported already.
    }
}

void LineWriter::Line(const QString& text)
{
    AppendInCodePage(m_gathered, text);
    m_gathered.append("\r\n", 2);
    if (m_gathered.size() >= PieceBytes)
        Flush();
}

void LineWriter::Close()
{
    Flush();
    m_file.Close();
}

void LineWriter::Flush()
{
    // Also on failure: what was partly written must not be written again.
    const auto clear = qScopeGuard([this] { m_gathered.resize(0); });
    m_file.Write(m_gathered);
}

} // namespace deckforge
