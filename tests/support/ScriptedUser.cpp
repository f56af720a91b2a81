#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace deckforge {

ScriptedUser::~ScriptedUser()
{
    EXPECT_TRUE(m_answers.empty()) << "an answer was left over";
    EXPECT_TRUE(m_paths.empty()) << "a path was left over";
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
