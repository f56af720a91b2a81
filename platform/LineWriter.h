// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Files.h"

#include <QByteArray>
#include <QString>

namespace deckforge {

/// Writes a text file line by line, with CR LF, in the single-byte code page.
///
/// The file is written when it is closed. A character that cannot be encoded is error 5, and its line is not
/// written.
class LineWriter {
public:
    explicit LineWriter(const QString& path) : m_file(path) {}
    /// Writes the lines before a failed one, as far as the disk allows.
    ~LineWriter();
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;

    /// Writes the text and a line end. Line breaks in the text are written as they are.
    void Line(const QString& text);

    void Close();

private:
    OutputFile m_file;
    QByteArray m_bytes; ///< still to be written
};

} // namespace deckforge
