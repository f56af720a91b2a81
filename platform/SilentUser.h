// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/UserPort.h"

#include <QPagedPaintDevice>

namespace deckforge {

/// A user who sees no messages and cancels every dialog.
class SilentUser : public UserPort {
public:
    Answer ShowMessage(const MessageBoxRequest& /*request*/) override { return deckforge::Answer::Ok; }
    void ReportProblems(const QStringList& /*problems*/) override {}
    std::optional<QString> AskOpenFile(const FileDialogRequest& /*request*/) override { return std::nullopt; }
    std::optional<QString> AskSaveFile(const FileDialogRequest& /*request*/) override { return std::nullopt; }
    std::optional<QString> BrowseForFolder() override { return std::nullopt; }
    std::optional<Colour> AskColour(const QString& /*title*/, Colour /*colour*/) override
    {
        return std::nullopt;
    }
    std::optional<FontSpec> AskFont(const QString& /*title*/, const FontSpec& /*font*/) override
    {
        return std::nullopt;
    }
    std::optional<QString> AskText(const QString& /*prompt*/, const QString& /*title*/,
                                   const QString& /*text*/) override
    {
        return std::nullopt;
    }
    std::unique_ptr<QPagedPaintDevice> OpenPrinter(const QString& /*document*/) override { return nullptr; }
    void SetPointer(Pointer /*pointer*/) override {}
    void ShowProgress(int /*done*/, int /*total*/) override {}
};

} // namespace deckforge
