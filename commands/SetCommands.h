// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/modInfo.h"
#include "platform/UserPort.h"

namespace deckforge {

// Commands for the set and its files, with their questions and message boxes.

/// Reads the file into the set and shows the result. Returns whether the set was read.
[[nodiscard]] bool OpenSet(CardSet& set, const QString& path, UserPort& user);

/// Writes the set to the path and shows the result. Returns whether it was written.
bool WriteSet(const CardSet& set, const QString& path, UserPort& user);

enum class SaveResult { Saved, Cancelled, Failed };

/// Always asks where to save, and writes the set there.
SaveResult SaveSet(CardSet& set, UserPort& user);

/// Asks for the set file to open; nothing if cancelled.
[[nodiscard]] std::optional<QString> AskSetToOpen(UserPort& user);

/// Writes the listing of the set's texts to the path and shows the result. Returns whether it is complete.
bool WriteListing(const CardSet& set, const QString& path, UserPort& user);

/// Asks for a path and writes the listing there; nothing if cancelled.
void ExportText(const CardSet& set, UserPort& user);

/// Shows why a file was not saved.
void ShowNotSaved(UserPort& user, const RunTimeError& error);

/// Whether the current element may be deleted: it is not the only one, and the user confirms.
[[nodiscard]] bool MayDelete(UserPort& user, CardKind kind, int16 count, const QString& name);

/// Deletes the current element after confirmation. Returns whether it was deleted.
template <class Record>
bool DeleteElement(CardSet& set, UserPort& user)
{
    const CardList<Record>& list = ListOf<Record>(set);
    if (!MayDelete(user, KindOf<Record>, list.Count(), list[list.Current].*NameField<Record>))
        return false;
    DeleteElement<Record>(set);
    return true;
}

/// Shows that the current element was copied.
void ShowCopied(UserPort& user, CardKind kind);

} // namespace deckforge
