#pragma once

#include <QComboBox>
#include <QSignalBlocker>

namespace deckforge {

// Lists whose entries only suggest: what is typed stays as typed.

inline void FillList(QComboBox& list, const QStringList& entries)
{
    list.clear();
    list.addItems(entries);
    if (list.isEditable())
        list.setCompleter(nullptr);
}

/// Makes an entry that was typed the current one, or else the list would choose it when it loses the
/// keyboard.
inline void SelectTyped(QComboBox& list)
{
    const QSignalBlocker quiet(list);
    const int entry = list.findText(list.currentText(), Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (entry >= 0)
        list.setCurrentIndex(entry);
}

/// Whether the text in the list is that of an entry, which Enter then chooses.
[[nodiscard]] inline bool ShowsEntry(const QComboBox& list)
{
    return list.currentIndex() >= 0 && list.itemText(list.currentIndex()) == list.currentText();
}

} // namespace deckforge
