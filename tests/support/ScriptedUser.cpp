// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/ScriptedUser.h"

#include <QPdfWriter>
#include <gtest/gtest.h>

namespace deckforge {

ScriptedUser::~ScriptedUser()
{
    EXPECT_TRUE(m_answers.empty()) << m_answers.size() << " answers that nobody asked for";
}

template <class Value>
std::optional<Value> ScriptedUser::Next(const QString& question)
{
    const Scripted next = m_answers.empty() ? Scripted() : m_answers.front();
    if (m_answers.empty() || !(std::holds_alternative<Value>(next) || next == Scripted()))
        ADD_FAILURE() << "no such answer was scripted: " << question.toStdString();
    else
        m_answers.pop_front();
    const Value* value = std::get_if<Value>(&next);
    return value ? std::optional(*value) : std::nullopt;
}

Answer ScriptedUser::ShowMessage(const MessageBoxRequest& request)
{
    Boxes.push_back(request);
    return request.Buttons == BoxButtons::Ok ? Answer::Ok : Next<Answer>(request.Text).value_or(Answer::No);
}

std::optional<QString> ScriptedUser::AskOpenFile(const FileDialogRequest& request)
{
    OpenDialogs.push_back(request);
    return Next<QString>(request.Title);
}

std::optional<QString> ScriptedUser::AskSaveFile(const FileDialogRequest& request)
{
    SaveDialogs.push_back(request);
    return Next<QString>(request.Title);
}

std::optional<QString> ScriptedUser::BrowseForFolder()
{
    return Next<QString>("a folder");
}

std::optional<Colour> ScriptedUser::AskColour(const QString& title, Colour /*colour*/)
{
    ColourTitles.append(title);
    return Next<Colour>(title);
}

std::optional<FontSpec> ScriptedUser::AskFont(const QString& title, const FontSpec& /*font*/)
{
    return Next<FontSpec>(title);
}

std::optional<QString> ScriptedUser::AskText(const QString& prompt, const QString& title, const QString& text)
{
    TextDialogs.append(title + '|' + prompt + '|' + text);
    return Next<QString>(title);
}

std::unique_ptr<QPagedPaintDevice> ScriptedUser::OpenPrinter(const QString& document)
{
    if (PrinterFile.isEmpty())
        return nullptr;
    PrintedDocuments.append(document);
    auto printer = std::make_unique<QPdfWriter>(PrinterFile);
    printer->setResolution(600);
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
