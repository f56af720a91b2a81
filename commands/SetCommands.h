// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/modInfo.h"
#include "platform/UserPort.h"

namespace deckforge {

// The commands on the set and its files, with their questions and message boxes.

/// Reads the file into the set and reports how that went. Returns whether the set is read.
[[nodiscard]] bool OpenSet(CardSet& set, const QString& path, UserPort& user);

/// Writes the set to the path and reports how that went. Returns whether the file is there.
bool WriteSet(const CardSet& set, const QString& path, UserPort& user);

enum class SaveResult { Saved, Cancelled, Failed };

/// Asks where to save, always, and writes the set there.
SaveResult SaveSet(CardSet& set, UserPort& user);

/// Asks for the set file to open; nothing on a cancel.
[[nodiscard]] std::optional<QString> AskSetToOpen(UserPort& user);

/// Writes the listing of the set's texts to the path and reports how that went. Returns whether it is
/// complete.
bool WriteListing(const CardSet& set, const QString& path, UserPort& user);

/// Asks where to, and writes the listing there; nothing on a cancel.
void ExportText(const CardSet& set, UserPort& user);

/// Shows a failure that ended a write.
void ShowNotSaved(UserPort& user, const RunTimeError& error);

/// Whether the current element may be deleted: it is not the only one, and the user agrees.
[[nodiscard]] bool MayDelete(UserPort& user, CardKind kind, int16 count, const QString& name);

/// Deletes the current element if it may be. Returns whether it is gone.
template <class Record>
bool DeleteElement(CardSet& set, UserPort& user)
{
    const CardList<Record>& list = ListOf<Record>(set);
    if (!MayDelete(user, KindOf<Record>, list.Count(), list[list.Current].*NameField<Record>))
        return false;
    DeleteElement<Record>(set);
    return true;
}

/// Says that the current element of the kind is copied.
void ShowCopied(UserPort& user, CardKind kind);

} // namespace deckforge
