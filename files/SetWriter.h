// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "files/SetFileFormat.h"
#include "files/StoredPath.h"
#include "platform/Types.h"

#include <QByteArray>

namespace deckforge {

/// How to write a text that a set file cannot hold, with more than MaxLineBytes: error 6, or cut.
enum class Unwritable { Fail, Cut };

/// Builds a set file in memory, line by line.
class SetWriter {
public:
    explicit SetWriter(Unwritable unwritable) : m_unwritable(unwritable) {}

    void Literal(const char* text);

    // For setFile::Fields. The file is of the current version, which has all fields.

    [[nodiscard]] static bool Has(setFile::Since /*since*/) { return true; }
    void Text(const QString& text, setFile::Since /*since*/ = {}, const QString& /*before*/ = {});
    void Flattened(const QString& text);                       ///< every CR LF becomes "|"
    void Path(const QString& path) { Line(StoredPath(path)); } ///< can hold any path
    void Boolean(bool value, setFile::Since /*since*/ = {}) { Literal(value ? "True" : "False"); }
    void Integer(int32 value, setFile::Since /*since*/ = {}, int32 /*before*/ = 0);
    void Real(double value);

    [[nodiscard]] QByteArray TakeBytes() { return std::move(m_bytes); }

private:
    void Line(const QString& text);
    void EndLine() { m_bytes.append(setFile::LineEnd, sizeof(setFile::LineEnd) - 1); }

    QByteArray m_bytes;
    Unwritable m_unwritable;
};

} // namespace deckforge
