// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/TextControl.h"

#include "platform/Paths.h"

#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextDocument>

namespace deckforge {

namespace {

/// Pasted text can contain line breaks, which single-line fields must not have.
QString OnOneLine(QString text)
{
    for (const char* lineBreak : {"\r\n", "\n", "\r"})
        text.replace(QLatin1String(lineBreak), QLatin1String(" "));
    return text;
}

int EntryWith(const QComboBox& list, const QString& text)
{
    return list.findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive);
}

} // namespace

QString TextOf(const QWidget& control)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&control))
        return OnOneLine(line->text());
    if (const auto* list = qobject_cast<const QComboBox*>(&control))
        return OnOneLine(list->currentText());
    // toPlainText() would replace no-break spaces.
    QString text = static_cast<const QPlainTextEdit&>(control).document()->toRawText();
    for (const QChar::SpecialCharacter lineEnd : {QChar::ParagraphSeparator, QChar::LineSeparator})
        text.replace(lineEnd, QLatin1String("\r\n"));
    return text;
}

void SetTextOf(QWidget& control, const QString& text)
{
    if (TextOf(control) == text)
        return;
    if (auto* line = qobject_cast<QLineEdit*>(&control))
        line->setText(text);
    else if (auto* list = qobject_cast<QComboBox*>(&control))
        ShowEntry(*list, text);
    else
        static_cast<QPlainTextEdit&>(control).setPlainText(text);
}

QLineEdit* LineEditOf(QObject* control)
{
    auto* const list = qobject_cast<QComboBox*>(control);
    return list ? list->lineEdit() : qobject_cast<QLineEdit*>(control);
}

void ShowText(QLineEdit& box, const QString& text, const QString& toolTip)
{
    box.setText(text);
    box.setToolTip(toolTip);
    box.setCursorPosition(0);
}

void ShowPath(QLineEdit& box, const QString& path)
{
    ShowText(box, NamePart(path), path);
}

void FillList(QComboBox& list, const QStringList& entries)
{
    list.clear();
    list.addItems(entries);
    if (list.isEditable())
        list.setCompleter(nullptr);
}

void ShowEntry(QComboBox& list, const QString& text)
{
    list.setCurrentIndex(EntryWith(list, text));
    list.setEditText(text);
}

void SelectTyped(QComboBox& list)
{
    const QSignalBlocker quiet(list);
    if (const int entry = EntryWith(list, list.currentText()); entry >= 0)
        list.setCurrentIndex(entry);
}

bool ShowsEntry(const QComboBox& list)
{
    return list.currentIndex() >= 0 && list.itemText(list.currentIndex()) == list.currentText();
}

} // namespace deckforge
