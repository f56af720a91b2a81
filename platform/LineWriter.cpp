// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LineWriter.h"

#include "platform/CodePage.h"

namespace deckforge {

void LineWriter::Line(const QString& text)
{
    m_text += text + QLatin1String("\r\n");
}

void LineWriter::Close()
{
    QByteArray bytes;
    if (IsInCodePage(m_text))
        AppendInCodePage(bytes, m_text);
    else
        bytes = "\xEF\xBB\xBF" + m_text.toUtf8();
    m_file.Write(bytes);
    m_file.Close();
}

} // namespace deckforge
