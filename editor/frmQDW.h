#pragma once

#include "core/CardKind.h"
#include "editor/EditorParts.h"

#include <QMainWindow>
#include <array>
#include <chrono>
#include <memory>

class QLabel;
class QProgressBar;
class QStackedWidget;
class QTabBar;

namespace deckforge {

class Page;
class PreviewController;
class SetInfoPanel;

/// The window of the program: a shell around the document, the preview, a page for each tab, the settings of
/// the set, and the commands. A control has the name of what it stands for, as an object name too.
class frmQDW final : public QMainWindow {
public:
    /// With a new set, whose rescue file is at most as old as given.
    explicit frmQDW(UserPort& user, std::chrono::milliseconds renewRescueAfter = std::chrono::minutes(1));
    ~frmQDW() override;

    /// What the program does once its window is visible: the command line, unless empty, is the path of a set
    /// to open.
    void Start(const QString& commandLine);

    /// Shows in the status bar how far a long run is, until done is total. Input waits meanwhile; drops are
    /// rejected, and the window does not close.
    void ShowProgress(int done, int total);

    /// For an end of the program that asks nobody.
    void RescueAtTheEnd() noexcept { m_document.RescueAtTheEnd(); }

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
    /// Runs a command, which may be long, and ends its progress whatever happens.
    void RunCommand(const std::function<void()>& work);
    /// The tables of types and backs have changed.
    void ShowTables();
    /// The fonts of the set have changed.
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

    // Help
    void ShowHelp();
    void ShowVersion();
    void ShowOffsets();
    [[nodiscard]] bool IsBackground(QPoint point) const;

    Workshop m_works;
    SetDocument m_document;
    CardPreview* m_preview;
    EditorParts m_parts;
    std::array<std::unique_ptr<Page>, 4> m_pages; ///< in the order of CardKind
    std::unique_ptr<SetInfoPanel> m_info;
    PreviewController* m_controller = nullptr;
    QTabBar* tbCard;
    QStackedWidget* m_forms;
    QProgressBar* m_progress;
    QLabel* m_hint;         ///< why the set cannot be saved as it is
    bool m_isBusy = false;  ///< with a long run, from its first step to its last
    bool m_mayLose = false; ///< the user has said so
    QSize m_fittedSize;     ///< which the window gave itself
    QSize m_chosenSize;     ///< which the user gave it
};

} // namespace deckforge
