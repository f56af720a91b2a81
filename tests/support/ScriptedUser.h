// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/UserPort.h"

#include <QStringList>
#include <deque>
#include <variant>
#include <vector>

namespace deckforge {

/// A user who answers from a script and records all questions and messages.
///
/// Message boxes with only OK need no script. Every other question takes the next queued answer: the test
/// fails if there is none, and at the end if answers are left.
class ScriptedUser final : public UserPort {
public:
    ScriptedUser() = default;
    ~ScriptedUser() override;

    void WillAnswer(deckforge::Answer answer) { m_answers.emplace_back(answer); }
    void WillChoose(const QString& path) { m_answers.emplace_back(path); }
    void WillPick(Colour colour) { m_answers.emplace_back(colour); }
    void WillPick(const FontSpec& font) { m_answers.emplace_back(font); }
    void WillType(const QString& text) { m_answers.emplace_back(text); }
    void WillCancelDialog() { m_answers.emplace_back(); }

    Answer ShowMessage(const MessageBoxRequest& request) override;
    void ReportProblems(const QStringList& problems) override { Problems += problems; }
    std::optional<QString> AskOpenFile(const FileDialogRequest& request) override;
    std::optional<QString> AskSaveFile(const FileDialogRequest& request) override;
    std::optional<QString> BrowseForFolder() override;
    std::optional<Colour> AskColour(const QString& title, Colour colour) override;
    std::optional<FontSpec> AskFont(const QString& title, const FontSpec& font) override;
    std::optional<QString> AskText(const QString& prompt, const QString& title, const QString& text) override;
    std::unique_ptr<QPagedPaintDevice> OpenPrinter(const QString& document) override;
    void SetPointer(Pointer pointer) override { Pointers.push_back(pointer); }
    void ShowProgress(int done, int total) override;

    std::vector<MessageBoxRequest> Boxes;
    QStringList Problems;
    std::vector<FileDialogRequest> OpenDialogs;
    std::vector<FileDialogRequest> SaveDialogs;
    std::vector<Pointer> Pointers;
    QStringList ColourTitles;
    QStringList TextDialogs; ///< "TITLE|prompt|text" of each
    QString PrinterFile;     ///< a PDF file instead of the printer; empty for no printer
    QStringList PrintedDocuments;
    int ProgressSteps = 0;

    /// "TITLE|text" of each message box, for comparing all of them at once, and of the last one.
    [[nodiscard]] QStringList BoxTexts() const;
    [[nodiscard]] QString LastMessageText() const { return BoxTexts().value(BoxTexts().size() - 1); }
    [[nodiscard]] MessageBoxRequest LastBox() const
    {
        return Boxes.empty() ? MessageBoxRequest() : Boxes.back();
    }

private:
    using Scripted = std::variant<std::monostate, deckforge::Answer, QString, Colour, FontSpec>;

    template <class Value>
    std::optional<Value> Next(const QString& question);

    std::deque<Scripted> m_answers;
};

} // namespace deckforge
