// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"
#include "core/CardKind.h"
#include "platform/Files.h"

#include <QSet>
#include <map>

namespace deckforge {

/// The problems of a run (one image, all images, sheets, pages or a printed page) and the files that it has
/// written. Derived classes show the progress and failures of the run.
class RunReport {
public:
    RunReport() = default;
    virtual ~RunReport() = default;
    RunReport(const RunReport&) = delete;
    RunReport& operator=(const RunReport&) = delete;

    /// The last call has done equal to total.
    virtual void ShowProgress(int done, int total) = 0;
    // The run continues after these failures.
    virtual void ShowNotComposed(const RunTimeError& error) = 0;
    virtual void ShowNotWritten(const char* title, const QString& reason) = 0; ///< reason may be empty

    /// Sets the card that the following problems and files belong to.
    void Begin(const CardSet& set, CardKind kind, int16 index);

    /// Adds `card 12 "Wolf": FILE: reason`, unless it is there already. The file may be empty.
    void Add(const QString& file, const QString& reason);

    /// Adds the problems of the last composition and clears them. Adds a missing symbol of the set once.
    void AddPictures(std::vector<PictureProblem>& problems, PictureLoader& pictures, const SetHeader& header);

    /// Adds a problem of the set as a whole.
    void AddForSet(const SetHeader& header, const QString& file, const QString& reason);

    /// Adds a file that could not be written, unless its folder could not be created, which is reported once.
    void AddNotWritten(const QString& path, const QString& reason);

    /// Creates the folder and calls `write`, which returns whether it wrote the file. Reports a file that
    /// this run had written before as replaced.
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
    void AddLine(const QString& line);

    QString m_element;
    QStringList m_problems;
    QSet<QString> m_reported;            ///< the same, for searching
    std::map<FileId, QString> m_writers; ///< the card that each file was written for
    bool m_isSymbolChecked = false;
};

} // namespace deckforge
