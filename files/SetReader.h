// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "files/StoredPath.h"
#include "platform/Types.h"

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

    [[nodiscard]] QString Text();
    [[nodiscard]] QString Flattened(); ///< every "|" becomes CR LF
    [[nodiscard]] QString Path() { return PathFromStored(Text()); }
    [[nodiscard]] bool Boolean();
    [[nodiscard]] int16 Int16();
    [[nodiscard]] int32 Int32();
    [[nodiscard]] double Real();

    /// The undecoded line, valid as long as the reader.
    QByteArrayView Line();

    /// The number of the line read last, from 1.
    [[nodiscard]] int LineNumber() const { return m_lineNumber; }

private:
    int m_lineNumber = 0;
    QByteArray m_bytes;
    bool m_skipsTexts;
    bool m_hasBareLineEnds; ///< LF alone
    qsizetype m_at = 0;
};

} // namespace deckforge
