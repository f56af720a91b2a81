#pragma once

#include "platform/UserPort.h"

#include <functional>

class QFileDialog;
class QWidget;

namespace deckforge {

/// Qt's widgets as the user's side of the program. Everything is asked over the window it serves.
///
/// Texts are shown letter by letter, whatever marks they hold. File dialogs start in the folder of the file
/// chosen last in this run.
class QtUser final : public UserPort {
public:
    ~QtUser() override;

    /// The window under all boxes, and what shows it how far a long run is. Until then boxes stand alone.
    void Serve(QWidget* window, std::function<void(int done, int total)> showProgress);

    Answer ShowMessage(const MessageBoxRequest& request) override;
    /// In the status bar of the window: the last one and how many more there are.
    void ReportProblems(const QStringList& problems) override;
    std::optional<QString> AskOpenFile(const FileDialogRequest& request) override;
    /// The file's folder exists, and the user has agreed to replace a file that is there.
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

/// What is asked before a save dialog lets the existing file at the path be replaced.
[[nodiscard]] QString ReplaceQuestion(const QString& path, const FileDialogRequest& request);

/// "All files(*.*)|*.*|Pictures (*.bmp;*.jpg)|*.bmp;*.jpg" as the name filters of Qt's file dialog. The
/// pattern for every file also takes those without an extension.
[[nodiscard]] QStringList NameFilters(const QString& filter);

} // namespace deckforge
