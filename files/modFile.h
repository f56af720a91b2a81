#pragma once

#include "core/CardSet.h"
#include "files/SetWriter.h"
#include "platform/UserPort.h"

namespace deckforge {

// The set file: lines ended by CR LF in the single-byte code page, one field to a line, no keys. Counts in
// the file say how long each section is. The current version is written; all up to it are read.

enum class Report { Silent, Tell };

/// Writes the set to the path and gives whether it is all there.
///
/// Before a file that is there is replaced, a copy of it goes to the same name with "~" behind it; it goes
/// away when the write has succeeded. Without that copy nothing is replaced. A failure is told in a box; the
/// old set is then the copy, and the file holds what had been written, or no copy was made, and the file is
/// the old set.
bool WriteDKF(const CardSet& set, const QString& path, UserPort& user, Report report);

/// The bytes of the file that the set would be written to.
[[nodiscard]] QByteArray SetFileBytes(const CardSet& set, Unwritable unwritable);

/// Reads a set file into the set and gives whether it is read. What was read before a failure stays in the
/// set: there is no way back. A refused file (no set, or of a newer version) changes nothing.
[[nodiscard]] bool ReadDKF(CardSet& set, const QString& path, UserPort& user);

enum class SaveResult { Saved, Cancelled, Failed };

/// Asks where to, and writes the set there; always asks.
SaveResult SaveSet(CardSet& set, UserPort& user);

/// Asks for the set file to open; nothing on a cancel.
[[nodiscard]] std::optional<QString> AskSetToOpen(UserPort& user);

/// Writes a plain listing of the set's texts for reading, and gives whether it is all there. Pictures, fonts
/// and user-designed backs are no part of it. A failure is told in a box, and what was written stays.
bool ExportSetText(const CardSet& set, const QString& path, UserPort& user);

/// Asks where to, and writes the listing there; nothing on a cancel.
void ExportText(const CardSet& set, UserPort& user);

/// Tells a failure that ended a write.
void TellNotSaved(UserPort& user, const RunTimeError& error);

} // namespace deckforge
