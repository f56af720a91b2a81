#pragma once

#include "files/StoredPath.h"
#include "platform/LineWriter.h"
#include "platform/Types.h"

namespace deckforge {

/// What becomes of a text that no set file can hold: a character outside the code page, a line break in a
/// field of one line, more than MostLineBytes. Mended, these are question marks, a blank, and cut.
enum class Unwritable { Fail, Mend };

/// Writes the lines of a set file, each by the type of its field. Failures are those of LineWriter.
class SetWriter {
public:
    explicit SetWriter(const QString& path) : m_lines(path) {}
    /// Gathers the bytes of a set file in memory.
    explicit SetWriter(Unwritable unwritable) : m_unwritable(unwritable) {}

    void Literal(const char* text);
    // Error 6 for texts too long to be read again.
    void Text(const QString& text);                            ///< error 5 for one with a line break
    void Flattened(const QString& text);                       ///< every CR LF becomes "|"
    void Path(const QString& path) { Text(StoredPath(path)); } ///< any path
    void Boolean(bool value);
    void Integer(int32 value);
    void Real(double value);

    [[nodiscard]] QByteArray& Gathered() { return m_lines.Gathered(); }

    /// All bytes are on the disk after this.
    void Close() { m_lines.CloseOnDisk(); }

private:
    qsizetype AppendText(const QString& text);
    void EndText(qsizetype start);

    LineWriter m_lines;
    Unwritable m_unwritable = Unwritable::Fail;
};

} // namespace deckforge
