#pragma once

#include "editor/EditorParts.h"

class QToolBar;

namespace deckforge {

class frmQDW;
class Page;

/// The commands of the tool bar with their shortcuts, and what each does on the selected tab.
class Commands final : public QObject {
public:
    Commands(EditorParts& parts, frmQDW& window);

private:
    void Fill(QToolBar& bar);
    [[nodiscard]] const CardSet& Set() const { return m_parts.Document.Set(); }
    /// On the tab of card backs, commands for whole cards work on the characters.
    [[nodiscard]] CardKind KindForCards() const;
    [[nodiscard]] Page& PageForCards() const;
    [[nodiscard]] int16 ExistingIndex(CardKind kind) const;
    void FillAfterRun();

    void ChangePicPath();
    void SetInfo();
    void ChangeFonts();
    void CreateOne();
    void CreateAll();
    void CreateSheets();
    void CreateHtml();
    void PrintCurrent();

    EditorParts& m_parts;
    frmQDW& m_window;
    QString m_lastBackFile; ///< the file chosen last in Customize Set
};

} // namespace deckforge
