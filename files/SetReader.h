// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "files/StoredPath.h"
#include "platform/Types.h"

#include <QByteArray>
#include <QString>

namespace deckforge {

/// Reads the lines of a set file, each by the type of its field. A line ends at CR LF, or at LF in a file
/// without any CR LF, as editors and version control convert them; the last one may lack it.
///
/// Every call takes one line: error 62 behind the last, 6 for one that is too long, 13 where a number or a
/// boolean word was due and the line holds none, 6 where the number does not fit the field.
class SetReader {
public:
    /// Skipped texts are empty: no text can fail, and to decode it takes most of the time.
    enum class Texts { Decode, Skip };

    /// Error 7 for more bytes than a set file may have.
    explicit SetReader(QByteArray bytes, Texts texts = Texts::Decode);

    [[nodiscard]] QString Text();
    [[nodiscard]] QString Flattened(); ///< every "|" becomes CR LF
    /// As StoredPath stores it.
    [[nodiscard]] QString Path() { return PathFromStored(Text()); }
    [[nodiscard]] bool Boolean();
    [[nodiscard]] int16 Int16();
    [[nodiscard]] int32 Int32();
    [[nodiscard]] double Real();

    /// The line as it stands, valid as long as the reader.
    QByteArrayView Line();

    /// Of the line read last, from 1.
    [[nodiscard]] int LineNumber() const { return m_lineNumber; }

private:
    int m_lineNumber = 0;
    QByteArray m_bytes;
    bool m_skipsTexts;
    bool m_hasBareLineEnds; ///< LF alone
    qsizetype m_at = 0;
};

} // namespace deckforge
