#include "editor/Commands.h"

#include "commands/OutputCommands.h"
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

struct Commands::Command {
    const char* Key = nullptr; ///< also the name of its image; null for a separator
    const char* ToolTip = nullptr;
    std::function<void()> Work = {};
    QKeySequence Shortcut = {};
};

Commands::Commands(EditorParts& parts, frmQDW& window) : QObject(&window), m_parts(parts), m_window(window)
{
    QToolBar* const bar = window.addToolBar(QStringLiteral("Commands"));
    bar->setObjectName(QStringLiteral("tbCardCreator"));
    bar->setMovable(false);
    Fill(*bar);
    const auto onKey = [this](const QKeySequence& key, void (Page::*work)()) {
        OnSignal(m_parts.User, new QShortcut(key, &m_window), &QShortcut::activated, this, [this, work] {
            if (m_window.SelectedKind() != CardKind::NewBack) // whose tab has no such keys
                (m_window.SelectedPage().*work)();
        });
    };
    onKey(Qt::CTRL | Qt::Key_N, &Page::Add);
    onKey(Qt::CTRL | Qt::Key_Comma, &Page::Previous);
    onKey(Qt::CTRL | Qt::Key_Period, &Page::Next);
}

void Commands::Fill(QToolBar& bar)
{
    const Command commands[] = {
        {"exit", "Exit deck forge", std::bind_front(&frmQDW::Exit, &m_window)},
        {},
        {"new", "New card set", std::bind_front(&frmQDW::NewSet, &m_window)},
        {"open", "Open card set", std::bind_front(&frmQDW::OpenSet, &m_window), Qt::CTRL | Qt::Key_O},
        {"save", "Save card set", std::bind_front(&frmQDW::SaveSet, &m_window), Qt::CTRL | Qt::Key_S},
        {"changepicpath", "Change path for pictures in set", std::bind_front(&Commands::ChangePicPath, this)},
        {},
        {"copy", "Copy current card", std::bind_front(&Commands::Copy, this)},
        {"paste", "Paste current card", std::bind_front(&Commands::Paste, this)},
        {},
        {"setinfo", "Set card defaults", std::bind_front(&Commands::SetInfo, this)},
        {"choosefont", "Set card fonts", std::bind_front(&Commands::ChangeFonts, this)},
        {},
        {"exportback", "Export cardbacks to disk", std::bind_front(&Commands::ExportBacks, this)},
        {"createone", "Create one card", std::bind_front(&Commands::CreateOne, this)},
        {"createall", "Create all cards", std::bind_front(&Commands::CreateAll, this)},
        {"createsheet", "Create card sheets", std::bind_front(&Commands::CreateSheets, this)},
        {"html", "Generate HTML", std::bind_front(&Commands::CreateHtml, this)},
        {"exporttext", "Export set to textfile", std::bind_front(&Commands::ExportListing, this)},
        {"printcard", "Print the current card", std::bind_front(&Commands::PrintCurrent, this)},
        {},
        {"statistics", "Show statistics", std::bind_front(&Commands::ShowStatistics, this)},
        {"about", "About", std::bind_front(&Commands::About, this)},
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

Page& Commands::PageForCards() const
{
    return m_window.PageOf(KindForCards());
}

CardKind Commands::KindForCards() const
{
    const CardKind kind = m_window.SelectedKind();
    return kind == CardKind::NewBack ? CardKind::Character : kind;
}

/// A new set has only standard cards until the other tabs are looked at; until then error 9.
int16 Commands::ExistingIndex(CardKind kind) const
{
    const int16 index = CurrentOf(m_parts.Document.Set(), kind);
    if (index < 1)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return index;
}

/// The run has laid the current card out again; other cards were on the preview before.
void Commands::FillAfterRun()
{
    if (CurrentOf(m_parts.Document.Set(), m_window.SelectedKind()) > 0)
        m_window.SelectedPage().Fill();
}

void Commands::ChangePicPath()
{
    m_parts.Document.Edit(QStringLiteral("Change picture path"),
                          [this](CardSet& set) { EditPicturePaths(set, m_parts.User, &m_window); });
    if (const int16 current = CurrentOf(m_parts.Document.Set(), m_window.SelectedKind()); current > 0)
        m_window.SelectedPage().Show(current);
}

void Commands::Copy()
{
    PageForCards().Copy();
}

void Commands::Paste()
{
    PageForCards().Paste();
}

void Commands::SetInfo()
{
    m_parts.Document.Edit(QStringLiteral("Customize Set"), [this](CardSet&) {
        EditSetInfo(m_parts.Works, m_parts.User, m_lastBackFile, &m_window);
    });
    m_window.ShowTables();
}

void Commands::ChangeFonts()
{
    m_parts.Document.Edit(QStringLiteral("Change Fonts"),
                          [this](CardSet& set) { EditFonts(set.Header, m_parts.User, &m_window); });
    m_window.ShowFonts();
}

void Commands::ExportBacks()
{
    ExportCardBacks(m_parts.Works, m_parts.User);
}

void Commands::CreateOne()
{
    const CardKind kind = m_window.SelectedKind();
    const int16 current = ExistingIndex(kind);
    m_window.SelectedPage().Show(current);
    ShownRun run(m_parts.User);
    m_parts.Document.Edit(QStringLiteral("Create one card"),
                          [&](CardSet&) { SaveImageAs(m_parts.Works, run, kind, current); });
}

void Commands::CreateAll()
{
    ShownRun run(m_parts.User);
    m_parts.Document.Edit(QStringLiteral("Create all cards"),
                          [&](CardSet&) { CreateImages(m_parts.Works, run, KindForCards()); });
    FillAfterRun();
}

void Commands::CreateSheets()
{
    const std::optional<SheetGrid> grid = AskSheetGrid(m_parts.Document.Set().Header.NoBack, &m_window);
    ShownRun run(m_parts.User);
    m_parts.Document.Edit(QStringLiteral("Create card sheets"), [&](CardSet&) {
        deckforge::CreateSheets(m_parts.Works, run, KindForCards(), grid); // reports a cancel as well
    });
    if (grid)
        FillAfterRun();
}

void Commands::CreateHtml()
{
    const CardSet& set = m_parts.Document.Set();
    const CardKind kind = KindForCards();
    ShownRun run(m_parts.User);
    deckforge::CreateHtml(set, run, static_cast<HtmlPages>(kind));
    if (kind == CardKind::Character)
        deckforge::CreateHtml(set, run, HtmlPages::Pieces);
}

void Commands::ExportListing()
{
    ExportText(m_parts.Document.Set(), m_parts.User);
}

/// The tab of card backs prints the current character, without its playing piece.
void Commands::PrintCurrent()
{
    const auto page = static_cast<PrintedPage>(m_window.SelectedKind());
    m_window.PageOf(KindOnPage(page)).Show(ExistingIndex(KindOnPage(page)));
    ShownRun run(m_parts.User);
    PrintCard(m_parts.Works, run, page);
}

void Commands::ShowStatistics()
{
    deckforge::ShowStatistics(m_parts.Document.Set(), m_parts.User);
}

void Commands::About()
{
    ShowAbout(&m_window);
}

} // namespace deckforge
