// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "files/SetFileFormat.h"

#include <QByteArray>
#include <QString>

namespace deckforge {

/// Reads a set file line by line. Lines end with CR LF, or with LF in a file without any CR LF (editors and
/// version control convert them). The last line may lack its end.
///
/// Every function reads one line. Errors: 62 past the end of the file, 6 for a line that is too long, 13 if
/// the line is not a number or boolean word as required, 6 if the number does not fit the field.
class SetReader {
public:
    /// Skipped texts are returned empty. Decoding cannot fail and takes most of the time.
    enum class Texts { Decode, Skip };

    /// Error 7 for more than MaxBytes.
    explicit SetReader(QByteArray bytes, Texts texts = Texts::Decode);

    /// The undecoded line, valid as long as the reader.
    QByteArrayView Line();
    [[nodiscard]] int16 Count();

    /// The number of the line read last, from 1.
    [[nodiscard]] int LineNumber() const { return m_lineNumber; }

    void SetVersion(int16 version) { m_version = version; }

    // For setFile::Fields. A field that the file's version lacks gets the value `before` and reads no line.

    [[nodiscard]] bool Has(setFile::Since since) const { return m_version >= since.Version; }
    void Text(QString& field, setFile::Since since = {}, const QString& before = {});
    void Flattened(QString& field); ///< every "|" becomes CR LF
    void Path(QString& field);
    void Boolean(bool& field, setFile::Since since = {});
    void Integer(int16& field, setFile::Since since = {}, int16 before = 0);
    void Integer(int32& field, setFile::Since since = {}, int32 before = 0);
    void Real(double& field);

private:
    int m_lineNumber = 0;
    int16 m_version = setFile::CurrentVersion;
    QByteArray m_bytes;
    bool m_skipsTexts;
    bool m_hasBareLineEnds; ///< LF alone
    qsizetype m_at = 0;
};

} // namespace deckforge
