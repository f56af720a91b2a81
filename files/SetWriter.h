#pragma once

#include "platform/Files.h"
#include "platform/Types.h"

#include <QByteArray>
#include <QString>

namespace deckforge {

/// Writes the lines of a set file, each by the type of its field.
///
/// Bytes are gathered and go to the file in large pieces. Failures of the file come from any call.
class SetWriter {
public:
    explicit SetWriter(const QString& path);
    /// What was gathered goes to the file even when a line failed, as far as the disk takes it.
    ~SetWriter();
    SetWriter(const SetWriter&) = delete;
    SetWriter& operator=(const SetWriter&) = delete;

    void Literal(const char* text);
    /// Error 5 for a text that cannot stand on one line of the file: one with a line break, or with a
    /// character that the code page lacks.
    void Text(const QString& text);
    void Flattened(const QString& text); ///< every CR LF becomes "|"
    void Boolean(bool value);
    void Integer(int32 value);
    void Real(double value);

    /// All bytes are on the disk after this.
    void Close();

private:
    void EndLine();
    void Flush();

    OutputFile m_file;
    QByteArray m_gathered;
};

} // namespace deckforge
