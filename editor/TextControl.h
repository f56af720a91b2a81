// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QString>

namespace deckforge {

// Text boxes and editable lists as records keep their texts: lines end with CR LF. The entries of an editable
// list are only suggestions.

[[nodiscard]] QString TextOf(const QWidget& control);

/// Does nothing if the control shows the text already, to keep its cursor.
void SetTextOf(QWidget& control, const QString& text);

/// The line edit of a text box or editable list; null for other controls.
[[nodiscard]] QLineEdit* LineEditOf(QObject* control);

/// Shows the beginning of a text that may be too long for its box.
void ShowText(QLineEdit& box, const QString& text, const QString& toolTip);

/// Shows the file name, with the whole path as tool tip.
void ShowPath(QLineEdit& box, const QString& path);

void FillList(QComboBox& list, const QStringList& entries);

/// Selects the entry with that text, or shows the text without one.
void ShowEntry(QComboBox& list, const QString& text);

/// Selects the entry that matches the typed text, as the list would do on losing the focus.
void SelectTyped(QComboBox& list);

/// Whether the current entry has the shown text; Enter then chooses it.
[[nodiscard]] bool ShowsEntry(const QComboBox& list);

} // namespace deckforge
