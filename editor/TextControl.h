#pragma once

#include <QString>

class QComboBox;
class QLineEdit;
class QWidget;

namespace deckforge {

// A text box of one line or of several, or a list that takes any text, as a record keeps its text: lines are
// parted by CR LF, and no other character is touched. A control that shows the text already is left alone,
// with its cursor.

[[nodiscard]] QString TextOf(const QWidget& control);
void SetTextOf(QWidget& control, const QString& text);

/// Shows the text in a list that takes any; the entry that reads so is the selected one.
void ShowEntry(QComboBox& list, const QString& text);

/// Shows a text that may be too long for its box: from its start, and with a tool tip.
void ShowText(QLineEdit& box, const QString& text, const QString& toolTip);

/// A path box shows the name; the whole path is its tool tip.
void ShowPath(QLineEdit& box, const QString& path);

} // namespace deckforge
