// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QObject;

namespace deckforge {

/// Makes every label of the program show plain text unless rich text was set explicitly: in windows, dialogs,
/// message boxes, status bars and tool tips. With Qt::AutoText a title such as `<img src="/dev/zero">` would
/// be parsed as rich text and the file read. Active until the owner is destroyed.
void ShowTextsAsPlain(QObject& owner);

} // namespace deckforge
