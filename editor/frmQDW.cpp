#include "editor/frmQDW.h"
#include "compose/SetView.h"
#include "dialogs/CardPreview.h"
#include "dialogs/FocusSelection.h"
#include "dialogs/PlainTexts.h"
#include "dialogs/WheelGuard.h"
#include "platform/Paths.h"
#include "ui_fraCard.h"
#include "ui_fraCardBack.h"
#include "ui_fraCharacter.h"
#include "ui_fraLargeCard.h"
#include "ui_fraSet.h"

#include <QAction>
#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

namespace deckforge {

namespace {

constexpr int UsualZoom = 2;

/// The form as a widget with its controls.
template <class Widget, class Form>
QWidget* MakeForm(Form& form, QWidget* parent)
{
    auto* const widget = new Widget(parent);
    form.setupUi(widget);
    return widget;
}

/// Wants room for all of the preview, and takes less where the screen is small.
class PreviewArea final : public QScrollArea {
public:
    explicit PreviewArea(CardPreview* preview, QWidget* parent) : QScrollArea(parent)
    {
        setWidget(preview);
        setFrameShape(QFrame::NoFrame);
        setAlignment(Qt::AlignLeft | Qt::AlignBottom);
        setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
        setFocusPolicy(Qt::NoFocus);
    }

    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        return DoubleCardSize; // at its smallest zoom
    }
};

} // namespace

frmQDW::frmQDW(UserPort& user, std::chrono::milliseconds renewRescueAfter)
    : m_workshop(user), m_work(ProgramFolder(), renewRescueAfter), m_card(std::make_unique<Ui::fraCard>()),
      m_large(std::make_unique<Ui::fraLargeCard>()), m_character(std::make_unique<Ui::fraCharacter>()),
      m_back(std::make_unique<Ui::fraCardBack>()), m_set(std::make_unique<Ui::fraSet>())
{
    setObjectName(QStringLiteral("frmQDW"));
    setWindowTitle(QStringLiteral("Varnhelm Deck Forge"));
    setContextMenuPolicy(Qt::PreventContextMenu); // it would offer to hide the tool bar
    setAcceptDrops(true);
    ShowTextsAsPlain(*this);
    BuildForms();
    BuildLayout();
    BuildToolBar();
    BuildStatusBar();
    FillLists();
    BindFields();
    BindLists();
    BindPictures();
    BindCards();
    BindDialogs();
    BindPreview();
    BindModes();
    BindFocus();
    Guarded([this] { InitForm(); });
    m_card->txtTitle->setFocus();
    m_card->txtTitle->selectAll();
    SetZoom(UsualZoom);
    if (sizeHint().width() > LargestSize().width())
        SetZoom(1);
}

frmQDW::~frmQDW() = default;

void frmQDW::Start(const QString& commandLine)
{
    if (!commandLine.isEmpty())
        Guarded([&] { DoOpenDKF(commandLine); });
    NoteEarlierRescue();
}

void frmQDW::ShowProgress(int done, int total)
{
    m_isBusy = done < total;
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
        {"changepicpath", "Change path for pictures in set", &frmQDW::ChangePicPath, {}},
        {},
        {"copy", "Copy current card", &frmQDW::Copy, {}},
        {"paste", "Paste current card", &frmQDW::Paste, {}},
        {},
        {"setinfo", "Set card defaults", &frmQDW::SetInfo, {}},
        {"choosefont", "Set card fonts", &frmQDW::ChangeFonts, {}},
        {},
        {"exportback", "Export cardbacks to disk", &frmQDW::ExportBacks, {}},
        {"createone", "Create one card", &frmQDW::CreateOne, {}},
        {"createall", "Create all cards", &frmQDW::CreateAll, {}},
        {"createsheet", "Create card sheets", &frmQDW::CreateSheets, {}},
        {"html", "Generate HTML", &frmQDW::CreateHtml, {}},
        {"exporttext", "Export set to textfile", &frmQDW::ExportListing, {}},
        {"printcard", "Print the current card", &frmQDW::PrintCurrent, {}},
        {},
        {"statistics", "Show statistics", &frmQDW::ShowStatistics, {}},
        {"about", "About", &frmQDW::About, {}},
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
        tbCardCreator->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    }
}

void frmQDW::BuildForms()
{
    tbCard = new QTabBar(this);
    tbCard->setObjectName(QStringLiteral("tbCard"));
    tbCard->setAccessibleName(QStringLiteral("Kind of card"));
    tbCard->setExpanding(false);
    tbCard->setDrawBase(false); // the pane below has a frame
    for (const char* caption : {"Card", "Large Card", "Character", "Card Back"})
        tbCard->addTab(QString::fromLatin1(caption));
    fraCard = MakeForm<QWidget>(*m_card, this);
    fraLargeCard = MakeForm<QWidget>(*m_large, this);
    fraCharacter = MakeForm<QWidget>(*m_character, this);
    fraCardBack = MakeForm<QWidget>(*m_back, this);
    fraSet = MakeForm<QGroupBox>(*m_set, this);
    m_forms = new QStackedWidget(this);
    for (QWidget* form : {fraCard, fraLargeCard, fraCharacter, fraCardBack})
        m_forms->addWidget(form);
    m_preview = new CardPreview(PreviewBoxes(m_workshop.Templates), this);
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->SetZoom(UsualZoom);
    m_previewArea = new PreviewArea(m_preview, this);
    setTabOrder(tbCard, m_preview); // and on to the forms, as they lie from left to right
    setTabOrder(m_preview, m_forms);
}

void frmQDW::BuildLayout()
{
    auto* const pane = new QFrame(this);
    pane->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto* const card = new QHBoxLayout(pane);
    card->addWidget(m_previewArea);
    card->addSpacing(card->spacing());
    card->addWidget(m_forms, 1);

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
    statusBar()->addPermanentWidget(m_progress, 1); // others make way for a message

    m_hint = new QLabel(this);
    m_hint->setObjectName(QStringLiteral("hint"));
    m_hint->setMinimumWidth(1); // a long text is cut, and does not widen the window
    m_hint->hide();
    statusBar()->addPermanentWidget(m_hint);
    connect(statusBar(), &QStatusBar::messageChanged, statusBar(), &QWidget::setToolTip);

    m_zooms = new QButtonGroup(this);
    for (int zoom = 1; zoom <= CardPreview::MostZoom; ++zoom) {
        auto* const button = new QToolButton(this);
        const QString text = QStringLiteral("%1x").arg(zoom);
        button->setObjectName(QStringLiteral("cmdZoom%1").arg(zoom));
        button->setText(text);
        button->setToolTip(QStringLiteral("Show the card at %1 times its size").arg(zoom));
        button->setAccessibleName(QStringLiteral("Zoom %1").arg(text));
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setChecked(zoom == m_preview->Zoom());
        button->setFocusPolicy(Qt::TabFocus);
        m_zooms->addButton(button, zoom);
        statusBar()->addPermanentWidget(button);
    }
}

/// These boxes are ready for new text when they get the keyboard.
void frmQDW::BindFocus()
{
    QWidget* const boxes[] = {m_card->txtTitle,           m_card->cboType,
                              m_card->cboNumber,          m_card->txtBold,
                              m_large->txtTitleLarge,     m_character->txtCharName,
                              m_character->cboStartArea,  m_character->cboAlignment,
                              m_character->cboCharAttr0,  m_character->cboCharAttr1,
                              m_character->cboCharAttr2,  m_character->cboCharAttr3,
                              m_back->txtNewCardBackName, m_set->txtSetname,
                              m_set->txtFilenamePrefix};
    for (QWidget* box : boxes)
        box->installEventFilter(this);
    m_set->lblSetName->installEventFilter(this);
    GuardFromWheel(*this);
}

bool frmQDW::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        SelectAll(watched, static_cast<QFocusEvent*>(event)->reason());
    else if (event->type() == QEvent::MouseButtonRelease && watched == m_set->lblSetName)
        Guarded([this] { ShowOffsets(); });
    return QMainWindow::eventFilter(watched, event);
}

void frmQDW::SelectAll(QObject* box, Qt::FocusReason reason)
{
    auto* const list = qobject_cast<QComboBox*>(box);
    auto* const line = list ? list->lineEdit() : qobject_cast<QLineEdit*>(box);
    if (line)
        SelectAllOnFocus(*line, reason);
}

/// What the screen has room for beside a frame.
QSize frmQDW::LargestSize() const
{
    constexpr QSize windowFrame = {32, 64};
    return screen()->availableSize() - windowFrame;
}

/// Gives the window what its contents want, as far as the screen has it. What the user made larger stays so.
void frmQDW::SizeToFit()
{
    if (isMaximized() || isFullScreen())
        return;
    if (m_fittedSize.isValid() && size() != m_fittedSize)
        m_chosenSize = size();
    resize(m_chosenSize.expandedTo(sizeHint()).boundedTo(LargestSize()));
    m_fittedSize = size();
}

void frmQDW::resizeEvent(QResizeEvent* event)
{
    constexpr int fromLeft = 11;
    constexpr int fromBottom = 265;
    OffsetLeft = fromLeft;
    OffsetTop = static_cast<int16>(frameGeometry().height() - fromBottom);
    QMainWindow::resizeEvent(event);
}

void frmQDW::InitForm()
{
    deckforge::InitForm(m_workshop);
    m_work.Keep(m_workshop.Set);
    FillCardTypeList();
    FillCardBackList();
    m_card->hsbCard->setRange(1, 1);
    FillSet();
    CardSizeSwitch(CardKind::Standard);
    FillCard();
}

/// The set may have changed.
void frmQDW::AfterHandler()
{
    if (!m_hint->isHidden())
        RenewHint();
    try {
        WithMemoryAsFailure([this] { m_work.Renew(m_workshop.Set); });
    } catch (const RunTimeError& error) {
        statusBar()->showMessage(
            QStringLiteral("Unsaved changes cannot be rescued: %1. Save the set.").arg(error.Description()));
    }
}

void frmQDW::TellFailure(const RunTimeError& error)
{
    m_isBusy = false;
    m_progress->hide();
    m_workshop.User.SetPointer(Pointer::Default);
    TellUntrapped(m_workshop.User, error);
}

} // namespace deckforge
