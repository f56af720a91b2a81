// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/Commands.h"

#include "commands/OutputCommands.h"
#include "commands/SetCommands.h"
#include "compose/FontScheme.h"
#include "dialogs/frmAbout.h"
#include "dialogs/frmCardSheet.h"
#include "dialogs/frmChangeFont.h"
#include "dialogs/frmPicPath.h"
#include "dialogs/frmSetInfo.h"
#include "editor/Page.h"
#include "editor/frmQDW.h"

#include <QAction>
#include <QShortcut>
#include <QToolBar>
#include <functional>

namespace deckforge {

namespace {

struct Command {
    const char* Key = nullptr; ///< also the name of its icon; null for a separator
    const char* ToolTip = nullptr;
    std::function<void()> Work = {};
    QKeySequence Shortcut = {};
};

/// The commands of the tool bar with their shortcuts, and what each does on the selected tab.
class Commands final : public QObject {
public:
    Commands(EditorParts& parts, frmQDW& window) : QObject(&window), m_parts(parts), m_window(window)
    {
        QToolBar* const bar = window.addToolBar(QStringLiteral("Commands"));
        bar->setObjectName(QStringLiteral("tbCardCreator"));
        bar->setMovable(false);
        Fill(*bar);
        const auto onKey = [this](const QKeySequence& key, void (Page::*work)()) {
            OnSignal(m_parts.User, new QShortcut(key, &m_window), &QShortcut::activated, this, [this, work] {
                if (m_window.SelectedKind() != CardKind::NewBack) // that tab has no such keys
                    (m_window.SelectedPage().*work)();
            });
        };
        onKey(Qt::CTRL | Qt::Key_N, &Page::Add);
        onKey(Qt::CTRL | Qt::Key_Comma, &Page::Previous);
        onKey(Qt::CTRL | Qt::Key_Period, &Page::Next);
    }

private:
    [[nodiscard]] const CardSet& Set() const { return m_parts.Document.Set(); }

    void Fill(QToolBar& bar)
    {
        const Command commands[] = {
            {"exit", "Exit deck forge", [this] { m_window.Exit(); }},
            {},
            {"new", "New card set", [this] { m_window.NewSet(); }},
            {"open", "Open card set", [this] { m_window.OpenSet(); }, Qt::CTRL | Qt::Key_O},
            {"save", "Save card set", [this] { m_window.SaveSet(); }, Qt::CTRL | Qt::Key_S},
            {"changepicpath", "Change path for pictures in set", [this] { ChangePicPath(); }},
            {},
            {"copy", "Copy current card", [this] { PageForCards().Copy(); }},
            {"paste", "Paste current card", [this] { PageForCards().Paste(); }},
            {},
            {"setinfo", "Set card defaults", [this] { SetInfo(); }},
            {"choosefont", "Set card fonts", [this] { ChangeFonts(); }},
            {},
            {"exportback", "Export cardbacks to disk",
             [this] { ExportCardBacks(m_parts.Works.Set, m_parts.Works.Art, m_parts.User); }},
            {"createone", "Create one card", [this] { CreateOne(); }},
            {"createall", "Create all cards", [this] { CreateAll(); }},
            {"createsheet", "Create card sheets", [this] { CreateSheets(); }},
            {"html", "Generate HTML", [this] { CreateHtml(); }},
            {"exporttext", "Export set to textfile", [this] { ExportText(Set(), m_parts.User); }},
            {"printcard", "Print the current card", [this] { PrintCurrent(); }},
            {},
            {"statistics", "Show statistics", [this] { ShowStatistics(Set(), m_parts.User); }},
            {"about", "About", [this] { ShowAbout(&m_window); }},
        };
        for (const Command& command : commands) {
            if (!command.Key) {
                bar.addSeparator();
                continue;
            }
            const QString key = QString::fromLatin1(command.Key);
            auto* const action = new QAction(QIcon(QStringLiteral(":/deckforge/toolbar/%1.svg").arg(key)),
                                             QString::fromLatin1(command.ToolTip), &m_window);
            action->setObjectName(key);
            action->setShortcut(command.Shortcut);
            OnSignal(m_parts.User, action, &QAction::triggered, this, [this, work = command.Work] {
                m_parts.Document.EndVisit();
                m_window.RunCommand(work);
            });
            bar.addAction(action);
            bar.widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
        }
    }

    /// On the tab of card backs, commands for whole cards work on the characters.
    [[nodiscard]] Page& PageForCards() const { return m_window.PageOf(KindForCards()); }

    [[nodiscard]] CardKind KindForCards() const
    {
        const CardKind kind = m_window.SelectedKind();
        return kind == CardKind::NewBack ? CardKind::Character : kind;
    }

    /// Error 9 if there is no record: a new set has only a standard card, until the other tabs are selected.
    [[nodiscard]] int16 ExistingIndex(CardKind kind) const
    {
        const int16 index = CurrentOf(Set(), kind);
        if (index < 1)
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        return index;
    }

    /// The run has shown each card on the preview, the current one last.
    void FillAfterRun()
    {
        if (CurrentOf(Set(), m_window.SelectedKind()) > 0)
            m_window.SelectedPage().Fill();
    }

    void ChangePicPath()
    {
        m_parts.Document.Edit(QStringLiteral("Change picture path"),
                              [this](CardSet& set) { EditPicturePaths(set, m_parts.User, &m_window); });
        if (const int16 current = CurrentOf(Set(), m_window.SelectedKind()); current > 0)
            m_window.SelectedPage().Show(current);
    }

    void SetInfo()
    {
        m_parts.Document.Edit(QStringLiteral("Customize Set"), [this](CardSet& set) {
            EditSetInfo(set, m_parts.Works.Art, m_parts.Works.Pictures, m_parts.User, m_lastBackFile,
                        &m_window);
        });
        m_window.ShowTables();
    }

    void ChangeFonts()
    {
        m_parts.Document.Edit(QStringLiteral("Change Fonts"),
                              [this](CardSet& set) { EditFonts(set.Header, m_parts.User, &m_window); });
        m_window.ShowFonts();
    }

    void CreateOne()
    {
        const CardKind kind = m_window.SelectedKind();
        const int16 current = ExistingIndex(kind);
        m_window.SelectedPage().Show(current);
        ShownRun run(m_parts.User);
        m_parts.Document.Edit(QStringLiteral("Create one card"),
                              [&](CardSet&) { SaveImageAs(m_parts.Works, run, kind, current); });
    }

    void CreateAll()
    {
        ShownRun run(m_parts.User);
        m_parts.Document.Edit(QStringLiteral("Create all cards"),
                              [&](CardSet&) { CreateImages(m_parts.Works, run, KindForCards()); });
        FillAfterRun();
    }

    void CreateSheets()
    {
        const std::optional<SheetGrid> grid = AskSheetGrid(Set().Header.NoBack, &m_window);
        ShownRun run(m_parts.User);
        m_parts.Document.Edit(QStringLiteral("Create card sheets"), [&](CardSet&) {
            deckforge::CreateSheets(m_parts.Works, run, KindForCards(), grid); // reports a cancel as well
        });
        if (grid)
            FillAfterRun();
    }

    void CreateHtml()
    {
        ShownRun run(m_parts.User);
        const CardKind kind = KindForCards();
        deckforge::CreateHtml(Set(), run, static_cast<HtmlPages>(kind));
        if (kind == CardKind::Character)
            deckforge::CreateHtml(Set(), run, HtmlPages::Pieces);
    }

    void PrintCurrent()
    {
        const auto page = static_cast<PrintedPage>(m_window.SelectedKind());
        m_window.PageOf(KindOnPage(page)).Show(ExistingIndex(KindOnPage(page)));
        ShownRun run(m_parts.User);
        PrintCard(m_parts.Works, run, page);
    }

    EditorParts& m_parts;
    frmQDW& m_window;
    QString m_lastBackFile; ///< last file chosen in Customize Set
};

} // namespace

void AddCommands(EditorParts& parts, frmQDW& window)
{
    new Commands(parts, window);
}

} // namespace deckforge
