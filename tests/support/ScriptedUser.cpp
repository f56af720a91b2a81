#include "support/ScriptedUser.h"

#include <QPdfWriter>
#include <gtest/gtest.h>

namespace deckforge {

ScriptedUser::~ScriptedUser()
{
    EXPECT_TRUE(m_answers.empty()) << "an answer was left over";
    EXPECT_TRUE(m_paths.empty()) << "a path was left over";
    EXPECT_TRUE(m_colours.empty()) << "a colour was left over";
    EXPECT_TRUE(m_fonts.empty()) << "a font was left over";
    EXPECT_TRUE(m_texts.empty()) << "a text was left over";
}

Answer ScriptedUser::ShowMessage(const MessageBoxRequest& request)
{
    Boxes.push_back(request);
    if (request.Buttons == BoxButtons::Ok)
        return deckforge::Answer::Ok;
    if (m_answers.empty()) {
        ADD_FAILURE() << "nobody scripted an answer to: " << request.Text.toStdString();
        return deckforge::Answer::No;
    }
    const deckforge::Answer answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

std::optional<QString> ScriptedUser::AskOpenFile(const FileDialogRequest& request)
{
    OpenDialogs.push_back(request);
    return NextPath(request.Title);
}

std::optional<QString> ScriptedUser::AskSaveFile(const FileDialogRequest& request)
{
    SaveDialogs.push_back(request);
    return NextPath(request.Title);
}

std::optional<QString> ScriptedUser::BrowseForFolder()
{
    return NextPath(QStringLiteral("Choose a directory from the list."));
}

std::optional<Colour> ScriptedUser::AskColour(const QString& title, Colour /*colour*/)
{
    ColourTitles.append(title);
    return Next(m_colours, title);
}

std::optional<FontSpec> ScriptedUser::AskFont(const QString& title, const FontSpec& font)
{
    FontDialogs.push_back(font);
    return Next(m_fonts, title);
}

std::optional<QString> ScriptedUser::AskText(const QString& prompt, const QString& title, const QString& text)
{
    TextDialogs.push_back(title + QLatin1Char('|') + prompt + QLatin1Char('|') + text);
    return Next(m_texts, title);
}

std::unique_ptr<QPagedPaintDevice> ScriptedUser::OpenPrinter(const QString& document)
{
    if (PrinterFile.isEmpty())
        return nullptr;
    PrintedDocuments.append(document);
    auto printer = std::make_unique<QPdfWriter>(PrinterFile);
    printer->setResolution(PrinterResolution);
    printer->setPageMargins({});
    return printer;
}

void ScriptedUser::ShowProgress(int done, int total)
{
    ++ProgressSteps;
    EXPECT_LE(done, total);
}

std::vector<QString> ScriptedUser::BoxTexts() const
{
    std::vector<QString> texts;
    for (const MessageBoxRequest& box : Boxes)
        texts.push_back(box.Title + QLatin1Char('|') + box.Text);
    return texts;
}

MessageBoxRequest ScriptedUser::LastBox() const
{
    if (Boxes.empty()) {
        ADD_FAILURE() << "no box was shown";
        return {};
    }
    return Boxes.back();
}

template <class Value>
std::optional<Value> ScriptedUser::Next(std::deque<std::optional<Value>>& queue, const QString& title)
{
    if (queue.empty()) {
        ADD_FAILURE() << "nobody scripted a choice for the dialog " << title.toStdString();
        return std::nullopt;
    }
    const std::optional<Value> value = queue.front();
    queue.pop_front();
    return value;
}

std::optional<QString> ScriptedUser::NextPath(const QString& title)
{
    if (m_paths.empty()) {
        ADD_FAILURE() << "nobody scripted a path for the dialog " << title.toStdString();
        return std::nullopt;
    }
    const QString path = m_paths.takeFirst();
    return path.isNull() ? std::nullopt : std::optional(path);
}

} // namespace deckforge
