#pragma once

class QObject;

namespace deckforge {

/// From now on every label of the program shows its text letter by letter, unless rich text was chosen for
/// it: those of windows, dialogs, message boxes, status bars and tool tips. A label that guesses would take a
/// title such as
/// `<img src="/dev/zero">` for rich text and read the file. Ends with the owner.
void ShowTextsAsPlain(QObject& owner);

} // namespace deckforge
