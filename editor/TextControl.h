#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QString>

namespace deckforge {

// Text boxes of one or several lines, and editable lists, whose entries only suggest: what is typed stays as
// typed. In a record lines are separated by CR LF.

[[nodiscard]] QString TextOf(const QWidget& control);

/// A control that shows the text already is left alone, so that its cursor stays.
void SetTextOf(QWidget& control, const QString& text);

/// The line edit of a text box or of an editable list; null for others.
[[nodiscard]] QLineEdit* LineEditOf(QObject* control);

/// Shows a text that may be too long for its box: from its start, and with a tool tip.
void ShowText(QLineEdit& box, const QString& text, const QString& toolTip);

/// A path box shows the name; the whole path is its tool tip.
void ShowPath(QLineEdit& box, const QString& path);

void FillList(QComboBox& list, const QStringList& entries);

/// Shows the text in an editable list, and selects the entry with that text if there is one.
void ShowEntry(QComboBox& list, const QString& text);

/// Selects the entry that was typed; else the list would do so when it loses the focus.
void SelectTyped(QComboBox& list);

/// Whether the typed text is that of the current entry, which Enter then chooses.
[[nodiscard]] bool ShowsEntry(const QComboBox& list);

} // namespace deckforge
