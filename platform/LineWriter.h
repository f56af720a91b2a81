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
    /// Without a file: all lines stay with the gathered bytes.
    LineWriter() = default;
    /// What was gathered goes to the file even when a line failed, as far as the disk takes it.
    ~LineWriter();
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;

    /// The text as it stands, with the line breaks that it holds.
    void Line(const QString& text);

    /// The bytes gathered, for those who put their lines together themselves, and end each.
    [[nodiscard]] QByteArray& Gathered() { return m_gathered; }
    void EndLine();

    void Close();
    void CloseOnDisk(); ///< all bytes are on the disk after this

private:
    void Flush();

    std::optional<OutputFile> m_file;
    QByteArray m_gathered;
};

} // namespace deckforge
