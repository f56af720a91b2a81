// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/frmQDW.h"

#include "commands/OutputCommands.h"
#include "compose/FontScheme.h"
#include "compose/StandardCard.h"
#include "dialogs/FocusSelection.h"
#include "dialogs/PlainTexts.h"
#include "dialogs/TabKeys.h"
#include "dialogs/WheelGuard.h"
#include "editor/Commands.h"
#include "editor/IncomingPictures.h"
#include "editor/Page.h"
#include "editor/PreviewController.h"
#include "editor/SetInfoPanel.h"

#include <QApplication>
#include <QBoxLayout>
#include <QProgressBar>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>

namespace deckforge {

frmQDW::frmQDW(UserPort& user, std::chrono::milliseconds renewRescueAfter)
    : m_document(m_works.Set, user, renewRescueAfter),
      m_preview(new CardPreview(m_works.Templates.Boxes(), this)),
      m_offer(new FitOffer(this)), m_parts{.Works = m_works,
                                           .Document = m_document,
                                           .Preview = *m_preview,
                                           .User = user,
                                           .Offer = *m_offer},
      tbCard(new QTabBar(this)), m_forms(new QStackedWidget(this)), m_progress(new QProgressBar(this)),
      m_hint(new QLabel(this))
{
    setObjectName(QStringLiteral("frmQDW"));
    setWindowTitle(QStringLiteral("Varnhelm Deck Forge"));
    setContextMenuPolicy(Qt::PreventContextMenu); // it would offer to hide the tool bar
    setAcceptDrops(true);
    ShowTextsAsPlain(*this);
    MakeParts();
    BuildLayout();
    BuildStatusBar();
    BindTabs();
    BindDocument();
    BindFocus();
    Guarded(user, [this] {
        ShowViewFailures(m_parts.User, InitForm(m_works));
        ShowNewSet();
    });
    m_document.Keep();
    PageOf(CardKind::Standard).StartTyping();
    m_controller->SetZoom(m_preview->Zoom());
    if (sizeHint().width() > LargestSize().width())
        m_controller->SetZoom(1);
}

frmQDW::~frmQDW()
{
    delete takeCentralWidget(); // before the parts that its signals call
}

void frmQDW::MakeParts()
{
    tbCard->setObjectName(QStringLiteral("tbCard"));
    tbCard->setAccessibleName(QStringLiteral("Kind of card"));
    tbCard->setExpanding(false);
    tbCard->setDrawBase(false); // the pane below has a frame
    for (const char* caption : {"Card", "Large Card", "Character", "Card Back"})
        tbCard->addTab(QString::fromLatin1(caption));
    m_pages = {MakeStandardPage(m_parts, this), MakeLargePage(m_parts, this),
               MakeCharacterPage(m_parts, this), MakeBackPage(m_parts, this)};
    m_info = std::make_unique<SetInfoPanel>(m_parts, this);
    for (const auto& page : m_pages)
        m_forms->addWidget(page->Form());
    m_preview->setObjectName(QStringLiteral("preview"));
    m_controller = new PreviewController(m_parts, this);
    AddCommands(m_parts, *this);
    setTabOrder(tbCard, m_preview); // then the forms, from left to right
    setTabOrder(m_preview, m_forms);
}

void frmQDW::BuildLayout()
{
    auto* const pane = new QFrame(this);
    pane->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto* const card = new QHBoxLayout(pane);
    card->addWidget(m_controller->Area());
    card->addSpacing(card->spacing());
    card->addWidget(m_forms, 1);

    auto* const tabs = new QVBoxLayout;
    tabs->setSpacing(0);
    tabs->addWidget(tbCard);
    tabs->addWidget(pane, 1);

    auto* const all = new QHBoxLayout;
    all->addLayout(tabs, 1);
    all->addWidget(m_info->Form());
    setCentralWidget(new QWidget(this));
    centralWidget()->setLayout(all);
    QMargins margins = all->contentsMargins();
    margins.setBottom(0); // the status bar is margin enough
    all->setContentsMargins(margins);
}

void frmQDW::BuildStatusBar()
{
    m_progress->setObjectName(QStringLiteral("progress"));
    m_progress->setAccessibleName(QStringLiteral("Progress"));
    m_progress->hide();
    statusBar()->addPermanentWidget(m_progress, 1); // messages hide non-permanent widgets

    m_hint->setObjectName(QStringLiteral("hint"));
    m_hint->setMinimumWidth(1); // elide a long text instead of widening the window
    m_hint->hide();
    statusBar()->addPermanentWidget(m_hint);
    statusBar()->addPermanentWidget(m_offer);
    connect(statusBar(), &QStatusBar::messageChanged, statusBar(), &QWidget::setToolTip);
    for (QAbstractButton* button : m_controller->ZoomButtons())
        statusBar()->addPermanentWidget(button);
}

void frmQDW::BindTabs()
{
    OnSignal(m_parts.User, tbCard, &QTabBar::currentChanged, this, [this] { TabClicked(); });
    OnSignal(m_parts.User, tbCard, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index == tbCard->currentIndex()) // otherwise currentChanged follows
            TabClicked();
    });
    BindTabKeys(*tbCard);
}

void frmQDW::BindDocument()
{
    connect(&m_document, &SetDocument::Noted, this, &frmQDW::AddNote);
    connect(&m_document, &SetDocument::UnsavableBecause, this, &frmQDW::ShowHint);
    OnSignal(m_parts.User, &m_document, &SetDocument::Restored, this,
             [this](const std::optional<CardKind>& kind) { ShowRestored(kind); });
    connect(m_controller, &PreviewController::FrameSized, this,
            [this](CardKind kind) { PageOf(kind).ShowFrameSize(); });
    connect(m_controller, &PreviewController::Zoomed, this, &frmQDW::SizeToFit);
    connect(qApp, &QApplication::focusChanged, &m_document, &SetDocument::EndVisit);
}

void frmQDW::BindFocus()
{
    const auto bind = [this](const std::vector<QWidget*>& boxes) {
        for (QWidget* box : boxes)
            box->installEventFilter(this);
    };
    for (const auto& page : m_pages)
        bind(page->BoxesToReplace());
    bind(m_info->BoxesToReplace());
    m_info->NameLabel()->installEventFilter(this);
    GuardFromWheel(*this);
    qApp->installEventFilter(new PicturePasteFilter(this));
    OnSignal(m_parts.User, new QShortcut(QKeySequence::Paste, this), &QShortcut::activated, this,
             [this] { PastePictures(); });
}

/// The available screen, less the window frame.
QSize frmQDW::LargestSize() const
{
    constexpr QSize windowFrame = {32, 64};
    return screen()->availableSize() - windowFrame;
}

/// Resizes the window to its contents, within the screen. A size that the user has enlarged is kept.
void frmQDW::SizeToFit()
{
    // Otherwise the layouts would still have the size hints of the previous zoom.
    for (QWidget* parent = m_controller->Area()->parentWidget(); parent; parent = parent->parentWidget()) {
        if (QLayout* const layout = parent->layout())
            layout->activate();
    }
    if (isMaximized() || isFullScreen())
        return;
    if (m_fittedSize.isValid() && size() != m_fittedSize)
        m_chosenSize = size();
    resize(m_chosenSize.expandedTo(sizeHint()).boundedTo(LargestSize()));
    m_fittedSize = size();
}

CardKind frmQDW::SelectedKind() const
{
    return static_cast<CardKind>(tbCard->currentIndex());
}

void frmQDW::TabClicked()
{
    tbCard->setFocus(); // Otherwise it would move to the next field when the form is hidden.
    ShowKind(SelectedKind());
    SelectedPage().Enter();
}

/// Shows the form of a kind and the front of its card. Does not select the tab.
void frmQDW::ShowKind(CardKind kind)
{
    m_forms->setCurrentIndex(static_cast<int>(kind));
    for (const auto& page : m_pages)
        page->SetShown(page->Kind() == kind);
    m_preview->SettleFocus();
}

void frmQDW::RunCommand(const std::function<void()>& work)
{
    const auto endProgress = qScopeGuard([this] {
        m_isBusy = false;
        m_progress->hide();
        m_parts.User.SetPointer(Pointer::Default);
    });
    work();
}

void frmQDW::ShowProgress(int done, int total)
{
    m_isBusy = done < total;
    m_progress->setMaximum(total);
    m_progress->setValue(done);
    m_progress->setVisible(done < total);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmQDW::ShowTables()
{
    Page& standard = PageOf(CardKind::Standard);
    standard.TakeSet();
    standard.Show(m_document.Set().Cards.Current);
}

void frmQDW::ShowFonts()
{
    const CardSet& set = m_document.Set();
    SetFont(m_works.Templates, set.Header);
    DrawArtistCredit(m_works.Templates.Standard, m_works.Surfaces.picArtist, set.Cards[set.Cards.Current],
                     set.Header.ArtistColor);
    m_preview->update();
}

void frmQDW::AddNote(const QString& note)
{
    const QString before = statusBar()->currentMessage();
    statusBar()->showMessage(before.isEmpty() ? note : before + QStringLiteral("  ") + note);
}

/// Shows why saving would fail, as long as it would.
void frmQDW::ShowHint(const QString& reason)
{
    m_hint->setText(reason);
    m_hint->setToolTip(reason);
    m_hint->setHidden(reason.isEmpty());
}

} // namespace deckforge
