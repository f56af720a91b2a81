#pragma once

#include "platform/UserPort.h"

namespace deckforge {

/// The user of a run without a window: boxes go to standard error as "TITLE: text", questions are answered
/// with No, dialogs with a cancel. On a terminal a long run shows how far it is.
class ConsoleUser final : public UserPort {
public:
    Answer ShowMessage(const MessageBoxRequest& request) override;
    std::optional<QString> AskOpenFile(const FileDialogRequest& request) override;
    std::optional<QString> AskSaveFile(const FileDialogRequest& request) override;
    std::optional<QString> BrowseForFolder() override;
    std::optional<Colour> AskColour(const QString& title, Colour colour) override;
    std::optional<FontSpec> AskFont(const QString& title, const FontSpec& font) override;
    std::optional<QString> AskText(const QString& prompt, const QString& title, const QString& text) override;
    std::unique_ptr<QPagedPaintDevice> OpenPrinter(const QString& document) override;
    void SetPointer(Pointer pointer) override;
    void ShowProgress(int done, int total) override;

    /// Whether a critical box was shown.
    [[nodiscard]] bool WasToldOfFailure() const { return m_toldOfFailure; }

private:
    bool m_toldOfFailure = false;
};

} // namespace deckforge
