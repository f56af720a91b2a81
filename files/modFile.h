#pragma once

#include "core/CardSet.h"
#include "files/SetWriter.h"
#include "platform/UserPort.h"

namespace deckforge {

// The set file: lines ended by CR LF in the single-byte code page, one field to a line, no keys. Counts in
// the file say how long each section is. The current version is written; all up to it are read.

enum class Report { Silent, Tell };

/// Writes the set to the path and returns whether it is all there and on the disk.
///
/// Nothing is written that the reader would not take. On failure an error box is shown and the file is
/// unchanged; where even that failed, the box says where its safety copy is (see SaveFile).
bool WriteDKF(const CardSet& set, const QString& path, UserPort& user, Report report);

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

/// Reads a set file into the set and returns whether it is read. What was read before a failure stays in the
/// set, which is a valid one nevertheless. A rejected file (no set, or of a newer version) changes nothing.
///
/// That file is then proposed for saving, whatever path it holds. Where a save of the file was cut off, a
/// box says where its safety copy is.
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

/// Shows a failure that ended a write.
void TellNotSaved(UserPort& user, const RunTimeError& error);

} // namespace deckforge
