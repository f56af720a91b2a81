// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"
#include "platform/Files.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <chrono>

namespace deckforge {

/// Whether a file of that name is a rescued set, in whatever folder.
[[nodiscard]] bool IsRescuedSet(const QString& path);

/// The set of one run of the program as it was last read, written or made anew, and the rescue file that the
/// run keeps of what differs from it.
///
/// The rescue file is "rescued.dkf" in the program's folder; where that takes none, in the folder of the
/// set's own file; else in a folder of the user's in the temporary one. The ones from before become
/// "rescued-1.dkf", the latest, to "rescued-9.dkf"; the tenth is removed. Writing the file again replaces it,
/// whatever number it has by then, so several programs can do so at once. A text that no set file can hold is
/// changed as far as it must be.
class UnsavedWork {
public:
    /// While the set is worked on its rescue file is at most `renewAfter` older than the last change.
    UnsavedWork(QString programFolder, std::chrono::milliseconds renewAfter);

    /// The set is what the file in that folder holds; without a folder it is a new set. A rescue file of the
    /// set is removed.
    void Keep(const CardSet& set, const QString& setFolder = {});

    /// Whether the file of the set would be another now. A set that no file can hold always differs.
    [[nodiscard]] bool Differs(const CardSet& set) const;

    /// To be called after each change: writes the rescue file if it is due and the set differs.
    void Renew(const CardSet& set);

    /// To be called before the set is given up. Writes the rescue file if the set differs and returns its
    /// path, else nothing. No later call touches that file, and this one touches none that is to be
    /// opened next.
    [[nodiscard]] std::optional<QString> Leave(const CardSet& set, const QString& toOpen = {});

    /// To be called where a set that was left may still be there; it then has its rescue file again. Returns
    /// whether it is there unchanged.
    bool ReturnTo(const CardSet& set);

    /// Writes the rescue file and returns its path.
    QString Rescue(const CardSet& set, const QString& toOpen = {});

    /// The same for a program that ends: standard error says where the file is, or why there is none.
    void RescueAtExit(const CardSet& set) noexcept;

    struct RescuedSet {
        QString Path;
        QDateTime Time;
    };
    /// The latest rescued set that is there, of whatever run.
    [[nodiscard]] std::optional<RescuedSet> LatestRescued() const;

private:
    struct OwnFile {
        QString Folder;
        FileAttributes Attributes; ///< by which it is found again under another number
    };

    [[nodiscard]] QString WriteTo(const QString& folder, const QByteArray& bytes, const QString& toOpen);
    [[nodiscard]] QString PathOfOwn() const;
    void RemoveOwn();

    QString m_programFolder;
    QString m_setFolder;
    QByteArray m_savedHash; ///< fingerprint of the set's file; empty where there can be none
    QByteArray m_leftHash;  ///< fingerprint of the set that was left
    std::optional<OwnFile> m_own;
    std::optional<OwnFile> m_leftFile;
    std::chrono::milliseconds m_renewAfter;
    QElapsedTimer m_sinceRenewed;
};

} // namespace deckforge
