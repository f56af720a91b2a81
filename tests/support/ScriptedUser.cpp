#include "support/ScriptedUser.h"

#include <QPdfWriter>
#include <array>
#include <gtest/gtest.h>

namespace deckforge {

ScriptedUser::~ScriptedUser()
{
    const std::array leftOver = {m_answers.size(), m_paths.size(), m_colours.size(), m_fonts.size(),
                                 m_texts.size()};
    EXPECT_EQ(leftOver, decltype(leftOver){})
        << "answers, paths, colours, fonts, texts that nobody asked for";
}

template <class Value>
std::optional<Value> ScriptedUser::Next(std::deque<std::optional<Value>>& queue, const QString& question)
{
    if (queue.empty()) {
        ADD_FAILURE() << "nobody scripted an answer to: " << question.toStdString();
        return std::nullopt;
    }
    const std::optional<Value> value = queue.front();
    queue.pop_front();
    return value;
}

Answer ScriptedUser::ShowMessage(const MessageBoxRequest& request)
{
    Boxes.push_back(request);
    if (request.Buttons == BoxButtons::Ok)
        return Answer::Ok;
    return Next(m_answers, request.Text).value_or(Answer::No);
}

std::optional<QString> ScriptedUser::AskOpenFile(const FileDialogRequest& request)
{
    OpenDialogs.push_back(request);
    return Next(m_paths, request.Title);
}

std::optional<QString> ScriptedUser::AskSaveFile(const FileDialogRequest& request)
{
    SaveDialogs.push_back(request);
    return Next(m_paths, request.Title);
}

std::optional<QString> ScriptedUser::BrowseForFolder()
{
    return Next(m_paths, "a folder");
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
    TextDialogs.append(title + '|' + prompt + '|' + text);
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

QStringList ScriptedUser::BoxTexts() const
{
    QStringList texts;
    for (const MessageBoxRequest& box : Boxes)
        texts.append(box.Title + '|' + box.Text);
    return texts;
}

} // namespace deckforge
