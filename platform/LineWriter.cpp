// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LineWriter.h"

#include "platform/CodePage.h"

#include <utility>

namespace deckforge {

LineWriter::~LineWriter()
{
    try {
        m_file.Write(m_bytes);
    } catch (const RunTimeError&) {
        // The failure that ended the writing has been reported already.
    }
}

void LineWriter::Line(const QString& text)
{
    AppendInCodePage(m_bytes, text);
    m_bytes.append("\r\n");
}

void LineWriter::Close()
{
    m_file.Write(std::exchange(m_bytes, {}));
    m_file.Close();
}

} // namespace deckforge
