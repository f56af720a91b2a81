#include "editor/Commands.h"

#include "compose/FontScheme.h"
#include "dialogs/frmAbout.h"
#include "dialogs/frmCardSheet.h"
#include "dialogs/frmChangeFont.h"
#include "dialogs/frmPicPath.h"
#include "dialogs/frmSetInfo.h"
#include "editor/Page.h"
#include "editor/frmQDW.h"
#include "output/HtmlSheets.h"
#include "output/Printing.h"
#include "output/Statistics.h"
#include "output/modCapture.h"

#include <QAction>
#include <QShortcut>
#include <QToolBar>
#include <functional>

namespace deckforge {

namespace {

/// Runs over all cards of a kind; there are none for card backs.
struct RunRow {
    decltype(&CreateCards) CreateAll;
    decltype(&CreateCardSheets) CreateSheets;
    decltype(&CreateHtmlCards) CreateHtml;
};
constexpr RunRow Runs[] = {{&CreateCards, &CreateCardSheets, &CreateHtmlCards},
                           {&CreateLargeCards, &CreateLargeCardSheets, &CreateHtmlLargeCards},
                           {&CreateCharacters, &CreateCharacterSheets, &CreateHtmlCharacters}};

/// Commands on the current card of a kind. On the tab of card backs the current character is printed, without
/// its playing piece.
struct CardRow {
    decltype(&SaveCard) Save;
    PrintedPage Page;
};
constexpr CardRow CardRows[] = {{&SaveCard, PrintedPage::Card},
                                {&SaveLargeCard, PrintedPage::LargeCard},
                                {&SaveCharacter, PrintedPage::Character},
                                {&SaveNewCardBack, PrintedPage::CharacterAlone}};

template <class Row, std::size_t N>
const Row& RowOf(const Row (&rows)[N], CardKind kind)
{
    return rows[static_cast<std::size_t>(kind)];
}

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
            {"exportback", "Export cardbacks to disk", [this] { ExportCardBacks(m_parts.Works); }},
            {"createone", "Create one card", [this] { CreateOne(); }},
            {"createall", "Create all cards", [this] { CreateAll(); }},
            {"createsheet", "Create card sheets", [this] { CreateSheets(); }},
            {"html", "Generate HTML", [this] { CreateHtml(); }},
            {"exporttext", "Export set to textfile", [this] { ExportText(Set(), m_parts.User); }},
            {"printcard", "Print the current card", [this] { PrintCurrent(); }},
            {},
            {"statistics", "Show statistics", [this] { Statistics(Set(), m_parts.User); }},
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
                              [this](CardSet&) { EditPicturePaths(m_parts.Works, &m_window); });
        if (const int16 current = CurrentOf(Set(), m_window.SelectedKind()); current > 0)
            m_window.SelectedPage().Show(current);
    }

    void SetInfo()
    {
        m_parts.Document.Edit(QStringLiteral("Customize Set"),
                              [this](CardSet&) { EditSetInfo(m_parts.Works, m_lastBackFile, &m_window); });
        m_window.ShowTables();
    }

    void ChangeFonts()
    {
        m_parts.Document.Edit(QStringLiteral("Change Fonts"),
                              [this](CardSet&) { EditFonts(m_parts.Works, &m_window); });
        m_window.ShowFonts();
    }

    void CreateOne()
    {
        const CardKind kind = m_window.SelectedKind();
        const int16 current = ExistingIndex(kind);
        m_window.SelectedPage().Show(current);
        RunReport report(m_parts.User);
        m_parts.Document.Edit(QStringLiteral("Create one card"), [&](CardSet&) {
            RowOf(CardRows, kind).Save(m_parts.Works, report, current, Ask::Yes, Tell::Yes, {});
        });
    }

    void CreateAll()
    {
        RunReport report(m_parts.User);
        m_parts.Document.Edit(QStringLiteral("Create all cards"), [&](CardSet&) {
            RowOf(Runs, KindForCards()).CreateAll(m_parts.Works, report);
        });
        FillAfterRun();
    }

    void CreateSheets()
    {
        const std::optional<SheetGrid> grid = AskSheetGrid(Set().Header.NoBack, &m_window);
        RunReport report(m_parts.User);
        m_parts.Document.Edit(QStringLiteral("Create card sheets"), [&](CardSet&) {
            RowOf(Runs, KindForCards())
                .CreateSheets(m_parts.Works, report, grid); // reports a cancelled dialog as well
        });
        if (grid)
            FillAfterRun();
    }

    void CreateHtml()
    {
        RunReport report(m_parts.User);
        RowOf(Runs, KindForCards()).CreateHtml(Set(), m_parts.User, report);
        if (KindForCards() == CardKind::Character)
            CreateHtmlPieces(Set(), m_parts.User, report);
    }

    void PrintCurrent()
    {
        const PrintedPage page = RowOf(CardRows, m_window.SelectedKind()).Page;
        m_window.PageOf(KindOnPage(page)).Show(ExistingIndex(KindOnPage(page)));
        RunReport report(m_parts.User);
        PrintCard(m_parts.Works, report, page);
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
