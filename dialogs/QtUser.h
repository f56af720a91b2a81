// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/UserPort.h"

#include <functional>

class QFileDialog;
class QWidget;

namespace deckforge {

/// UserPort implemented with Qt Widgets. Dialogs are shown over the served window.
///
/// Texts are shown as plain text. File dialogs start in the folder of the last file chosen in this run.
class QtUser final : public UserPort {
public:
    ~QtUser() override;

    /// Sets the parent of all dialogs and the function that shows progress. Without it dialogs have no
    /// parent.
    void Serve(QWidget* window, std::function<void(int done, int total)> showProgress);

    Answer ShowMessage(const MessageBoxRequest& request) override;
    /// Shows the last problem and the number of the others in the window's status bar.
    void ReportProblems(const QStringList& problems) override;
    std::optional<QString> AskOpenFile(const FileDialogRequest& request) override;
    /// The folder exists, and the user has confirmed replacing an existing file.
    std::optional<QString> AskSaveFile(const FileDialogRequest& request) override;
    std::optional<QString> BrowseForFolder() override;
    std::optional<Colour> AskColour(const QString& title, Colour colour) override;
    std::optional<FontSpec> AskFont(const QString& title, const FontSpec& font) override;
    std::optional<QString> AskText(const QString& prompt, const QString& title, const QString& text) override;
    std::unique_ptr<QPagedPaintDevice> OpenPrinter(const QString& document) override;
    void SetPointer(Pointer pointer) override;
    void ShowProgress(int done, int total) override;

private:
    [[nodiscard]] QWidget* TopWindow() const;
    void Prepare(QFileDialog& dialog, const FileDialogRequest& request) const;
    [[nodiscard]] bool MayWrite(const QString& path, const FileDialogRequest& request);
    [[nodiscard]] QString Remembered(const QString& path);

    QWidget* m_window = nullptr;
    std::function<void(int, int)> m_showProgress;
    QString m_lastFolder; ///< empty until a file was chosen
    bool m_isHourglass = false;
};

/// The question before a save dialog replaces the existing file at the path.
[[nodiscard]] QString ReplaceQuestion(const QString& path, const FileDialogRequest& request);

} // namespace deckforge
