#pragma once

#include "platform/Files.h"

#include <QByteArray>
#include <QString>

namespace deckforge {

/// Writes a text file line by line: CR LF behind each, in the single-byte code page.
///
/// Bytes are gathered and go to the file in large pieces. Failures of the file come from any call; a
/// character that the code page lacks is error 5, and nothing of its line is written.
class LineWriter {
public:
    explicit LineWriter(const QString& path);
    /// What was gathered goes to the file even when a line failed, as far as the disk takes it.
    ~LineWriter();
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;

    /// The text as it is, with the line breaks that it holds.
    void Line(const QString& text);

    void Close();

private:
    void Flush();

    OutputFile m_file;
    QByteArray m_gathered;
};

} // namespace deckforge
