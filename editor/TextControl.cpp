#include "editor/TextControl.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>

namespace deckforge {

QString TextOf(const QWidget& control)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&control))
        return line->text();
    // The raw text: the plain one has ordinary blanks for those that do not break.
    QString text = static_cast<const QPlainTextEdit&>(control).document()->toRawText();
    for (const QChar::SpecialCharacter lineEnd : {QChar::ParagraphSeparator, QChar::LineSeparator})
        text.replace(lineEnd, QLatin1String("\r\n"));
    return text;
}

void SetTextOf(QWidget& control, const QString& text)
{
    if (auto* line = qobject_cast<QLineEdit*>(&control))
        line->setText(text);
    else
        static_cast<QPlainTextEdit&>(control).setPlainText(text);
}

} // namespace deckforge
