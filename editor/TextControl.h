#pragma once

#include <QString>

class QWidget;

namespace deckforge {

// A text box of one line or of several, as a record keeps its text: lines are parted by CR LF, and no other
// character is touched.

[[nodiscard]] QString TextOf(const QWidget& control);
void SetTextOf(QWidget& control, const QString& text);

} // namespace deckforge
