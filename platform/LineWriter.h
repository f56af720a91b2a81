// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Files.h"

#include <QByteArray>
#include <QString>

namespace deckforge {

/// Writes a text file line by line, with CR LF, in the single-byte code page; with any character that this
/// does not have, in UTF-8 with a byte order mark.
///
/// The file is written when it is closed.
class LineWriter {
public:
    explicit LineWriter(const QString& path) : m_file(path) {}
    /// Writes the text and a line end. Line breaks in the text are written as they are.
    void Line(const QString& text);

    void Close();

private:
    OutputFile m_file;
    QString m_text;
};

} // namespace deckforge
