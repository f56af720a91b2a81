// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"
#include "files/SetWriter.h"
#include "platform/RunTimeError.h"

#include <QStringList>
#include <optional>

namespace deckforge {

// The set file: text in a single-byte code page, lines ended by CR LF, one field per line, no keys. Each
// section starts with its count. Files of the current and all older versions can be read.

/// Writes the set and syncs the file to the disk. Fails if the reader would not accept the file. On failure
/// the old file is unchanged, or the description says where its safety copy is (see SaveFile).
void WriteDKF(const CardSet& set, const QString& path);

/// The contents of the set's file.
[[nodiscard]] QByteArray SetFileBytes(const CardSet& set, Unwritable unwritable);

/// Fails as opening a file with these contents would.
void CheckReadable(const QByteArray& bytes);

/// How reading a set file ended.
struct ReadOutcome {
    enum class Rejection { None, NoCardSet, NewerVersion };

    Rejection Rejected = Rejection::None;     ///< the set is unchanged unless None
    bool IsConverted = false;                 ///< the file is of an older version
    QString UnmatchedEnd = {};                ///< "FILE:LINE" if the last line is wrong, else empty
    std::optional<RunTimeError> Failure = {}; ///< with file and line
    QStringList SafetyCopies = {};            ///< of the file, from interrupted saves

    [[nodiscard]] bool IsRead() const { return Rejected == Rejection::None && !Failure; }
};

/// Reads a set file into the set. After a failure the set is valid and contains what was read up to then.
/// Saving proposes this file, whatever path it contains.
[[nodiscard]] ReadOutcome ReadDKF(CardSet& set, const QString& path);

/// Writes a readable listing of the set's texts, without pictures, fonts and user-designed backs. On failure
/// the file is left incomplete.
void ExportSetText(const CardSet& set, const QString& path);

} // namespace deckforge
