// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "files/SetFileFormat.h"
#include "files/StoredPath.h"
#include "platform/Types.h"

#include <QByteArray>

namespace deckforge {

/// What becomes of a text that no set file can hold: a character outside the code page, a line break in a
/// field of one line, more than MaxLineBytes. Mended, these are question marks, a blank, and cut.
enum class Unwritable { Fail, Replace };

/// Puts the lines of a set file together in memory, each by the type of its field. A character outside the
/// code page is error 5.
class SetWriter {
public:
    explicit SetWriter(Unwritable unwritable) : m_unwritable(unwritable) {}

    void Literal(const char* text);
    // Error 6 for texts too long to be read again.
    void Text(const QString& text);                            ///< error 5 for one with a line break
    void Flattened(const QString& text);                       ///< every CR LF becomes "|"
    void Path(const QString& path) { Text(StoredPath(path)); } ///< any path
    void Boolean(bool value);
    void Integer(int32 value);
    void Real(double value);

    [[nodiscard]] QByteArray TakeBytes() { return std::move(m_bytes); }

private:
    qsizetype AppendText(const QString& text);
    void EndText(qsizetype start);
    void EndLine() { m_bytes.append(setFile::LineEnd, sizeof(setFile::LineEnd) - 1); }

    QByteArray m_bytes;
    Unwritable m_unwritable;
};

} // namespace deckforge
