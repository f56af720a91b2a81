// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"
#include "platform/Files.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <chrono>

namespace deckforge {

/// Whether the file name is that of a rescued set; the folder does not matter.
[[nodiscard]] bool IsRescuedSet(const QString& path);

/// Knows whether the set has changed since it was last read, written or created, and maintains the rescue
/// file of this run of the program.
///
/// The rescue file is "rescued.dkf" in the program's folder, else in the folder of the set's file, else in a
/// private folder below the temporary one. Earlier rescued sets are renumbered from "rescued-1.dkf" (the
/// latest) to "rescued-9.dkf"; the tenth is removed. Writing the rescue file again replaces it even if
/// another program has renumbered it. Texts that are too long for a set file are cut.
class UnsavedWork {
public:
    /// The rescue file is rewritten after a change if it is older than `renewAfter`.
    UnsavedWork(QString programFolder, std::chrono::milliseconds renewAfter);

    /// Records the set as saved in a file of that folder (none for a new set), and removes its rescue file.
    void Keep(const CardSet& set, const QString& setFolder = {});

    /// Whether the set has changed. Always true for a set that cannot be written to a file.
    [[nodiscard]] bool Differs(const CardSet& set) const;

    /// Call after each change. Writes the rescue file if it is due and the set differs.
    void Renew(const CardSet& set);

    /// Call before the set is closed or replaced. Writes the rescue file if the set differs, and returns its
    /// path. Later calls do not touch that file; this one does not touch the file `toOpen`, which is opened
    /// next.
    [[nodiscard]] std::optional<QString> Leave(const CardSet& set, const QString& toOpen = {});

    /// Call if the set may still be open after Leave. Returns whether it is unchanged since; its rescue file
    /// is then maintained again.
    bool ReturnTo(const CardSet& set);

    /// Writes the rescue file and returns its path.
    QString Rescue(const CardSet& set, const QString& toOpen = {});

    /// The same when the program ends. Reports the path, or the failure, on standard error.
    void RescueAtExit(const CardSet& set) noexcept;

    struct RescuedSet {
        QString Path;
        QDateTime Time;
    };
    /// The latest rescued set of any run.
    [[nodiscard]] std::optional<RescuedSet> LatestRescued() const;

private:
    struct OwnFile {
        QString Folder;
        FileAttributes Attributes; ///< to recognize the file after it was renumbered
    };

    [[nodiscard]] QString WriteTo(const QString& folder, const QByteArray& bytes, const QString& toOpen);
    [[nodiscard]] QString PathOfOwn() const;
    void RemoveOwn();

    QString m_programFolder;
    QString m_setFolder;
    QByteArray m_savedHash; ///< of the set's file; empty if the set cannot be written
    QByteArray m_leftHash;  ///< of the set at Leave
    std::optional<OwnFile> m_own;
    std::optional<OwnFile> m_leftFile;
    std::chrono::milliseconds m_renewAfter;
    QElapsedTimer m_sinceRenewed;
};

} // namespace deckforge
