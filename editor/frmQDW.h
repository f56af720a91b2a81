// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardKind.h"
#include "editor/EditorParts.h"

#include <QMainWindow>
#include <array>
#include <chrono>
#include <memory>

class QLabel;
class QMimeData;
class QProgressBar;
class QStackedWidget;
class QTabBar;

namespace deckforge {

class Page;
class PreviewController;
class SetInfoPanel;

/// The main window: owns the document, the preview, the tabs, the settings of the set, and the commands.
/// Controls have the names that the documentation uses, also as object names.
class frmQDW final : public QMainWindow {
public:
    /// Starts with a new set. After a change the rescue file is at most `renewRescueAfter` old.
    explicit frmQDW(UserPort& user, std::chrono::milliseconds renewRescueAfter = std::chrono::minutes(1));
    ~frmQDW() override;

    /// Call once the window is visible. The command line is the path of a set to open, or empty.
    void Start(const QString& commandLine);

    /// Shows the progress of a long run in the status bar, until done equals total. Meanwhile input and drops
    /// are ignored, and the window cannot be closed.
    void ShowProgress(int done, int total);

    /// Writes the rescue file when the process is terminated involuntarily.
    void RescueAtExit() noexcept { m_document.RescueAtExit(); }

    [[nodiscard]] const Workshop& Works() const { return m_works; }
    [[nodiscard]] SetDocument& Document() { return m_document; }

    // For the commands.
    void Exit();
    void NewSet();
    void OpenSet();
    void SaveSet();
    [[nodiscard]] CardKind SelectedKind() const;
    [[nodiscard]] Page& SelectedPage() const { return PageOf(SelectedKind()); }
    [[nodiscard]] Page& PageOf(CardKind kind) const { return *m_pages.at(static_cast<std::size_t>(kind)); }
    /// Runs a command and hides its progress afterwards, even if it fails.
    void RunCommand(const std::function<void()>& work);
    /// Call when the tables of types or backs have changed.
    void ShowTables();
    /// Call when the fonts of the set have changed.
    void ShowFonts();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Of art and pictures on the preview: up to 3x, or 2x on a display of 200 percent.
    static constexpr int PreviewFineness = 4;

    // Building
    void MakeParts();
    void BuildLayout();
    void BuildStatusBar();
    void BindTabs();
    void BindDocument();
    void BindFocus();

    // Size
    [[nodiscard]] QSize LargestSize() const;
    void SizeToFit();

    // Tabs
    void TabClicked();
    void ShowKind(CardKind kind);

    // The set
    void OpenFile(const QString& path);
    void ShowNewSet();
    void ShowOpened();
    void ShowRestored(const std::optional<CardKind>& kind);

    // Status bar
    void AddNote(const QString& note);
    void ShowHint(const QString& reason);

    // Drops
    [[nodiscard]] bool TakesDrop(const QDropEvent& event) const;
    void DropPicture(const Box* box, const QString& path);
    void TakePictures(const QMimeData& carried, const std::function<void(const QString&)>& take);
    void PastePictures();

    // Help
    void ShowHelp();
    void ShowVersion();
    void ShowOffsets();
    [[nodiscard]] bool IsBackground(QPoint point) const;

    Workshop m_works = Workshop(1, PreviewFineness);
    SetDocument m_document;
    CardPreview* m_preview;
    FitOffer* m_offer;
    EditorParts m_parts;
    std::array<std::unique_ptr<Page>, 4> m_pages; ///< in the order of CardKind
    std::unique_ptr<SetInfoPanel> m_info;
    PreviewController* m_controller = nullptr;
    QTabBar* tbCard;
    QStackedWidget* m_forms;
    QProgressBar* m_progress;
    QLabel* m_hint;         ///< why the set cannot be saved
    bool m_isBusy = false;  ///< during a long run
    bool m_mayLose = false; ///< the user chose to exit without saving
    QSize m_fittedSize;     ///< last size set by SizeToFit()
    QSize m_chosenSize;     ///< last size set by the user
};

} // namespace deckforge
