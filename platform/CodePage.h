// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace deckforge {

// The single-byte code page of set files, Windows-1252. Its five unassigned bytes map to the control
// characters of the same value, so that every byte survives a round trip.

/// Never fails.
[[nodiscard]] QString FromCodePage(QByteArrayView bytes);

/// Whether the code page has every character of the text.
[[nodiscard]] bool IsInCodePage(QStringView text);

/// Appends the text to the bytes, with a question mark for a character that the code page does not have.
void AppendInCodePage(QByteArray& bytes, QStringView text);

} // namespace deckforge
