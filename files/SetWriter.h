#pragma once

#include "platform/LineWriter.h"
#include "platform/Types.h"

namespace deckforge {

/// Writes the lines of a set file, each by the type of its field. Failures are those of LineWriter.
class SetWriter {
public:
    explicit SetWriter(const QString& path) : m_lines(path) {}

    void Literal(const char* text);
    void Text(const QString& text);      ///< error 5 for one with a line break
    void Flattened(const QString& text); ///< every CR LF becomes "|"
    void Boolean(bool value);
    void Integer(int32 value);
    void Real(double value);

    /// All bytes are on the disk after this.
    void Close() { m_lines.CloseOnDisk(); }

private:
    LineWriter m_lines;
};

} // namespace deckforge
