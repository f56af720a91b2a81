#pragma once

#include "editor/EditorParts.h"

class QToolBar;

namespace deckforge {

class frmQDW;
class Page;

/// The commands of the tool bar, with their keys, and what each does on the selected tab.
class Commands final : public QObject {
public:
    Commands(EditorParts& parts, frmQDW& window);

private:
    struct Command;

    void Fill(QToolBar& bar);
    /// The page that commands for whole cards work on: on the tab of card backs that of the characters.
    [[nodiscard]] Page& PageForCards() const;
    [[nodiscard]] CardKind KindForCards() const;
    [[nodiscard]] int16 ExistingIndex(CardKind kind) const;
    void FillAfterRun();

    void ChangePicPath();
    void Copy();
    void Paste();
    void SetInfo();
    void ChangeFonts();
    void ExportBacks();
    void CreateOne();
    void CreateAll();
    void CreateSheets();
    void CreateHtml();
    void ExportListing();
    void PrintCurrent();
    void ShowStatistics();
    void About();

    EditorParts& m_parts;
    frmQDW& m_window;
    QString m_lastBackFile; ///< the file chosen last in Customize Set
};

} // namespace deckforge
