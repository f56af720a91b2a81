// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"
#include "files/SetWriter.h"
#include "platform/RunTimeError.h"

#include <QStringList>
#include <optional>

namespace deckforge {

// The set file: lines ended by CR LF in the single-byte code page, one field to a line, no keys. Counts in
// the file say how long each section is. The current version is written; all up to it are read.

/// Writes the set to the path; the file is then all there and on the disk.
///
/// Nothing is written that the reader would not accept. On failure the file is unchanged; where even that
/// failed, the description says where its safety copy is (see SaveFile).
void WriteDKF(const CardSet& set, const QString& path);

/// The bytes of the file that the set would be written to.
[[nodiscard]] QByteArray SetFileBytes(const CardSet& set, Unwritable unwritable);

// Each fails as writing a set would fail at this part of it.
void CheckSavable(const SetHeader& header);
void CheckSavable(const NewCardValues& values);
void CheckSavable(const CardType& type);
void CheckSavable(const CardBack& back);
void CheckSavable(const Card& card);
void CheckSavable(const LargeCard& card);
void CheckSavable(const Character& character);
void CheckSavable(const NewCardBack& back);

/// Fails as opening a file of these bytes would.
void CheckReadable(const QByteArray& bytes);

/// How reading a set file ended.
struct ReadOutcome {
    enum class Rejection { None, NoCardSet, NewerVersion };

    Rejection Rejected = Rejection::None; ///< the set is unchanged unless None
    bool IsConverted = false;             ///< the file is of an older version
    QString UnmatchedEnd = {}; ///< "FILE:LINE" where the last line is another one; empty if it is right
    std::optional<RunTimeError> Failure = {}; ///< with file and line
    QStringList SafetyCopies = {};            ///< of the file, from saves that were cut off

    [[nodiscard]] bool IsRead() const { return Rejected == Rejection::None && !Failure; }
};

/// Reads a set file into the set. What was read before a failure stays in the set, which is a valid one
/// nevertheless. The file is then proposed for saving, whatever path it holds.
[[nodiscard]] ReadOutcome ReadDKF(CardSet& set, const QString& path);

/// Writes a plain listing of the set's texts for reading. Pictures, fonts and user-designed backs are not in
/// it. What was written before a failure stays.
void ExportSetText(const CardSet& set, const QString& path);

} // namespace deckforge
