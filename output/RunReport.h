// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"
#include "core/CardKind.h"
#include "platform/Files.h"

#include <QSet>
#include <map>

namespace deckforge {

/// What a run (one image, all images, sheets, pages or a printed page) did not do as the user expects, and
/// which files it has written. Whoever starts a run derives from it to follow the run while it goes on.
class RunReport {
public:
    RunReport() = default;
    virtual ~RunReport() = default;
    RunReport(const RunReport&) = delete;
    RunReport& operator=(const RunReport&) = delete;

    /// How far the run is: done of total. The last call has done equal to total.
    virtual void ShowProgress(int done, int total) = 0;
    /// A card could not be composed; the run goes on.
    virtual void ShowNotComposed(const RunTimeError& error) = 0;
    /// An image could not be written; the run goes on. The reason is empty where it has no words of its own.
    virtual void ShowNotWritten(const char* title, const QString& reason) = 0;

    /// The card that the problems and files from here on belong to.
    void Begin(const CardSet& set, CardKind kind, int16 index);

    /// Reports `card 12 "Wolf": FILE: reason`, without the file where it is empty; each line once.
    void Add(const QString& file, const QString& reason);

    /// The pictures that the last composition could not show, and the symbol of the set.
    void AddPictures(Workshop& workshop);

    /// A problem of the set as a whole.
    void AddForSet(const SetHeader& header, const QString& file, const QString& reason);

    /// A file that could not be written. A folder that cannot be made is reported once, not with each of its
    /// files.
    void AddNotWritten(const QString& path, const QString& reason);

    /// Runs what writes the file at the path and returns whether it did, and makes the folder first. A file
    /// that this run wrote before is reported as replaced.
    template <class Write>
    void WriteFile(const QString& path, Write&& write)
    {
        MakeFolderOf(path);
        const QString replaced = TakeWriter(path);
        if (write())
            RecordWritten(path, replaced);
    }

    [[nodiscard]] bool HasWritten() const { return !m_writers.empty(); }
    [[nodiscard]] const QStringList& Problems() const { return m_problems; }

private:
    void MakeFolderOf(const QString& path);
    [[nodiscard]] QString TakeWriter(const QString& path);
    void RecordWritten(const QString& path, const QString& replaced);
    void AddSymbol(Workshop& workshop);
    void AddLine(const QString& line);

    QString m_element;
    QStringList m_problems;
    QSet<QString> m_reported;            ///< the same
    std::map<FileId, QString> m_writers; ///< of each written file, the card that it was written for
    bool m_isSymbolChecked = false;
};

} // namespace deckforge
