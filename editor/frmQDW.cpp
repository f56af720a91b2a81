#include "editor/frmQDW.h"

#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "core/Vocabulary.h"
#include "editor/CardPreview.h"
#include "ui_fraCard.h"
#include "ui_fraSet.h"

#include <QAction>
#include <QBoxLayout>
#include <QProgressBar>
#include <QScreen>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>

namespace deckforge {

namespace {

/// The form as a widget with its controls.
template <class Widget, class Form>
QWidget* MakeForm(Form& form, QWidget* parent)
{
    auto* const widget = new Widget(parent);
    form.setupUi(widget);
    return widget;
}

} // namespace

frmQDW::frmQDW(UserPort& user)
    : m_workshop(user), m_card(std::make_unique<Ui::fraCard>()), m_set(std::make_unique<Ui::fraSet>())
{
    setObjectName(QStringLiteral("frmQDW"));
    setWindowTitle(QStringLiteral("Varnhelm Deck Forge"));
    setContextMenuPolicy(Qt::PreventContextMenu); // it would offer to hide the tool bar
    BuildForms();
    BuildLayout();
    BuildToolBar();
    BuildStatusBar();
    BindFields();
    BindCards();
    Guarded([this] { InitForm(); });
    m_card->txtTitle->setFocus();
    constexpr QSize windowFrame = {32, 64};
    resize(sizeHint().boundedTo(screen()->availableSize() - windowFrame));
}

frmQDW::~frmQDW() = default;

void frmQDW::Start(const QString& commandLine)
{
    if (!commandLine.isEmpty())
        Guarded([&] { DoOpenDKF(commandLine); });
}

void frmQDW::CardSizeSwitch(int mode)
{
    CardTemplate& card = m_workshop.Templates.Standard;
    const bool isStandard = mode == 1;
    fraCard->setVisible(isStandard);
    card.picCard.Visible = isStandard;
    card.picBack.Visible = isStandard; // also where the set goes without backs, until the set is shown again
    m_preview->update();
}

void frmQDW::ShowSet()
{
    deckforge::ShowSet(m_workshop);
    FillSet();
}

void frmQDW::ShowCard(int16 index)
{
    const bool isShown = deckforge::ShowCard(m_workshop, index);
    m_preview->update();
    if (isShown)
        FillCard();
}

void frmQDW::ShowProgress(int done, int total)
{
    m_progress->setMaximum(total);
    m_progress->setValue(done);
    m_progress->setVisible(done < total);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmQDW::BuildToolBar()
{
    struct Command {
        const char* Key; ///< also the name of its image; null for a separator
        const char* ToolTip;
        void (frmQDW::*Run)();
        QKeySequence Shortcut;
    };
    const Command commands[] = {
        {"exit", "Exit deck forge", &frmQDW::Exit, {}},
        {},
        {"new", "New card set", &frmQDW::NewSet, {}},
        {"open", "Open card set", &frmQDW::OpenSet, Qt::CTRL | Qt::Key_O},
        {"save", "Save card set", &frmQDW::SaveSet, Qt::CTRL | Qt::Key_S},
        {},
        {"copy", "Copy current card", &frmQDW::CopyCard, {}},
        {"paste", "Paste current card", &frmQDW::PasteCard, {}},
        {},
        {"exportback", "Export cardbacks to disk", &frmQDW::ExportBacks, {}},
        {"createone", "Create one card", &frmQDW::CreateOne, {}},
        {"createall", "Create all cards", &frmQDW::CreateAll, {}},
        {"createsheet", "Create card sheets", &frmQDW::CreateSheets, {}},
        {"html", "Generate HTML", &frmQDW::CreateHtml, {}},
        {"exporttext", "Export set to textfile", &frmQDW::ExportListing, {}},
        {},
        {"statistics", "Show statistics", &frmQDW::ShowStatistics, {}},
    };
    QToolBar* const tbCardCreator = addToolBar(QStringLiteral("Commands"));
    tbCardCreator->setObjectName(QStringLiteral("tbCardCreator"));
    tbCardCreator->setMovable(false);
    for (const Command& command : commands) {
        if (!command.Key) {
            tbCardCreator->addSeparator();
            continue;
        }
        const QString key = QString::fromLatin1(command.Key);
        auto* const action = new QAction(QIcon(QStringLiteral(":/deckforge/toolbar/%1.svg").arg(key)),
                                         QString::fromLatin1(command.ToolTip), this);
        action->setObjectName(key);
        action->setShortcut(command.Shortcut);
        On(action, &QAction::triggered, [this, run = command.Run] { (this->*run)(); });
        tbCardCreator->addAction(action);
    }
}

void frmQDW::BuildForms()
{
    tbCard = new QTabBar(this);
    tbCard->setObjectName(QStringLiteral("tbCard"));
    tbCard->setExpanding(false);
    tbCard->setDrawBase(false); // the pane below has a frame
    tbCard->addTab(QStringLiteral("Card"));
    fraCard = MakeForm<QWidget>(*m_card, this);
    fraSet = MakeForm<QGroupBox>(*m_set, this);
    m_set->cboSaveFormat->addItems(SaveFormats());
    m_preview = new CardPreview(PreviewBoxes(m_workshop.Templates.Standard), this);
    m_preview->setObjectName(QStringLiteral("preview"));
}

void frmQDW::BuildLayout()
{
    auto* const pane = new QFrame(this);
    pane->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto* const card = new QHBoxLayout(pane);
    card->addWidget(m_preview);
    card->addSpacing(card->spacing());
    card->addWidget(fraCard);

    auto* const tabs = new QVBoxLayout;
    tabs->setSpacing(0);
    tabs->addWidget(tbCard);
    tabs->addWidget(pane, 1);

    auto* const all = new QHBoxLayout;
    all->addLayout(tabs, 1);
    all->addWidget(fraSet);
    setCentralWidget(new QWidget(this));
    centralWidget()->setLayout(all);
    QMargins margins = all->contentsMargins();
    margins.setBottom(0); // the status bar is margin enough
    all->setContentsMargins(margins);
}

void frmQDW::BuildStatusBar()
{
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(QStringLiteral("progress"));
    m_progress->setAccessibleName(QStringLiteral("Progress"));
    m_progress->hide();
    statusBar()->addWidget(m_progress, 1);
}

void frmQDW::InitForm()
{
    deckforge::InitForm(m_workshop);
    m_card->hsbCard->setRange(1, 1);
    FillSet();
    CardSizeSwitch(1);
    FillCard();
}

void frmQDW::TellFailure(const RunTimeError& error)
{
    m_progress->hide();
    m_workshop.User.SetPointer(Pointer::Default);
    TellUntrapped(m_workshop.User, error);
}

} // namespace deckforge
