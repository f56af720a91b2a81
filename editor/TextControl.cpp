#include "editor/TextControl.h"

#include "platform/Paths.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>

namespace deckforge {

namespace {

/// A text pasted from elsewhere can bring line breaks, which a field of one line cannot be saved with.
QString OnOneLine(QString text)
{
    for (const char* lineBreak : {"\r\n", "\n", "\r"})
        text.replace(QLatin1String(lineBreak), QLatin1String(" "));
    return text;
}

} // namespace

QString TextOf(const QWidget& control)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&control))
        return OnOneLine(line->text());
    if (const auto* list = qobject_cast<const QComboBox*>(&control))
        return OnOneLine(list->currentText());
    // The raw text: the plain one has ordinary blanks for those that do not break.
    QString text = static_cast<const QPlainTextEdit&>(control).document()->toRawText();
    for (const QChar::SpecialCharacter lineEnd : {QChar::ParagraphSeparator, QChar::LineSeparator})
        text.replace(lineEnd, QLatin1String("\r\n"));
    return text;
}

void SetTextOf(QWidget& control, const QString& text)
{
    if (TextOf(control) == text)
        return; // with its cursor
    if (auto* line = qobject_cast<QLineEdit*>(&control))
        line->setText(text);
    else if (auto* list = qobject_cast<QComboBox*>(&control))
        ShowEntry(*list, text);
    else
        static_cast<QPlainTextEdit&>(control).setPlainText(text);
}

void ShowEntry(QComboBox& list, const QString& text)
{
    list.setCurrentIndex(list.findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    list.setEditText(text);
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

} // namespace deckforge
