// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/PreviewController.h"

#include "compose/FontScheme.h"
#include "dialogs/Choices.h"
#include "platform/Twips.h"

#include <QButtonGroup>
#include <QScrollArea>
#include <QShortcut>
#include <QToolButton>
#include <QToolTip>

namespace deckforge {

namespace {

constexpr int DefaultZoom = 2;

/// Prefers the size of the whole preview, and scrolls on small screens.
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
        return DoubleCardSize; // at zoom 1
    }
};

} // namespace

PreviewController::PreviewController(EditorParts& parts, QWidget* window)
    : QObject(window), m_parts(parts), m_area(new PreviewArea(&parts.Preview, window)),
      m_zooms(new QButtonGroup(this))
{
    parts.Preview.SetZoom(DefaultZoom);
    BuildZoom(window);
    const auto on = [this](auto signal, auto handler) {
        OnSignal(m_parts.User, &m_parts.Preview, signal, this, handler);
    };
    on(&CardPreview::Pressed, [this](const Box*, QPoint point) {
        m_parts.Document.EndVisit(); // each gesture is a separate step
        m_dragStart = point;
    });
    on(&CardPreview::Dragged, std::bind_front(&PreviewController::Dragged, this));
    on(&CardPreview::Clicked, [this](const Box* box) { LabelClicked(box, 1); });
    on(&CardPreview::DoubleClicked, [this](const Box* box) { LabelClicked(box, 2); });
    on(&CardPreview::KeyPressed, std::bind_front(&PreviewController::KeyPressed, this));
    on(&CardPreview::TipWanted, std::bind_front(&PreviewController::ShowTip, this));
}

void PreviewController::BuildZoom(QWidget* window)
{
    for (int zoom = 1; zoom <= CardPreview::MaxZoom; ++zoom) {
        auto* const button = new QToolButton(window);
        const QString text = QStringLiteral("%1x").arg(zoom);
        button->setObjectName(QStringLiteral("cmdZoom%1").arg(zoom));
        button->setText(text);
        button->setToolTip(QStringLiteral("Show the card at %1 times its size").arg(zoom));
        button->setAccessibleName(QStringLiteral("Zoom %1").arg(text));
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setChecked(zoom == m_parts.Preview.Zoom());
        button->setFocusPolicy(Qt::TabFocus);
        m_zooms->addButton(button, zoom);
    }
    OnSignal(m_parts.User, m_zooms, &QButtonGroup::idClicked, this, [this](int zoom) { SetZoom(zoom); });
    const auto onKey = [&](const QKeySequence& key, int step) {
        OnSignal(m_parts.User, new QShortcut(key, window), &QShortcut::activated, this,
                 [this, step] { SetZoom(m_parts.Preview.Zoom() + step); });
    };
    onKey(QKeySequence::ZoomIn, 1);
    onKey(Qt::CTRL | Qt::Key_Equal, 1); // "+" without Shift
    onKey(QKeySequence::ZoomOut, -1);
}

QList<QAbstractButton*> PreviewController::ZoomButtons() const
{
    return m_zooms->buttons();
}

void PreviewController::SetZoom(int zoom)
{
    CardPreview& preview = m_parts.Preview;
    preview.SetZoom(zoom);
    m_zooms->button(preview.Zoom())->setChecked(true);
    preview.resize(preview.sizeHint());
    m_area->updateGeometry();
    Q_EMIT Zoomed();
}

std::array<PreviewController::PlacementRow, 4> PreviewController::Placements() const
{
    const CardTemplates& t = m_parts.Works.Templates;
    return {{
        {t.Standard.picImage, &t.Standard.lblPicSize, PlacedPicture::Standard, CardKind::Standard},
        {t.Large.picImageLarge, &t.Large.lblPicSizeLarge, PlacedPicture::Large, CardKind::Large},
        {t.Character.picImageCharacter, &t.Character.lblPicSizeCharacter, PlacedPicture::Character,
         CardKind::Character},
        {t.PlayingPiece.picPlayingPieceImage, nullptr, PlacedPicture::PlayingPiece, CardKind::Character},
    }};
}

void PreviewController::Place(const PlacementRow& row, const char* step, const std::function<void()>& work)
{
    m_parts.Document.Edit(QString::fromLatin1(step), ScopeOf(row.Kind), [&](CardSet&) { work(); });
    Q_EMIT FrameSized(row.Kind);
    m_parts.Preview.update();
}

void PreviewController::LabelClicked(const Box* box, int clicks)
{
    if (!box || !box->FontOfSet || box->FontClicks != clicks)
        return;
    const SetHeader& header = m_parts.Document.Set().Header;
    FontSpec font = header.*box->FontOfSet;
    ChooseFont(m_parts.User, font);
    m_parts.Document.Edit(QStringLiteral("Font"), EditScope::Settings,
                          [&](CardSet& set) { set.Header.*box->FontOfSet = font; });
    SetFont(m_parts.Works.Templates, header);
    m_parts.Preview.update();
}

/// A picture follows the pointer. A handle stops at its limits, so it is moved by its distance to the
/// pointer.
void PreviewController::Dragged(const Box* box, QPoint point, QPoint moved)
{
    CardTemplates& t = m_parts.Works.Templates;
    CardSet& set = m_parts.Works.Set;
    const QPoint toPointer = point - m_dragStart;
    for (const PlacementRow& row : Placements()) {
        if (box == &row.Image) {
            Place(row, "Move picture", [&] {
                MovePicture(t, set, row.Picture, moved.x() * TwipsPerPixelX, moved.y() * TwipsPerPixelY);
            });
        } else if (box == row.Handle) {
            const int pixels = row.Picture == PlacedPicture::Standard ? toPointer.y() : toPointer.x();
            Place(row, "Size frame", [&] { MoveHandle(t, set, row.Picture, pixels); });
        }
    }
}

void PreviewController::KeyPressed(const Box* picture, Qt::Key key, Qt::KeyboardModifiers held)
{
    CardTemplates& t = m_parts.Works.Templates;
    CardSet& set = m_parts.Works.Set;
    held.setFlag(Qt::KeypadModifier, false);
    for (const PlacementRow& row : Placements()) {
        if (picture != &row.Image)
            continue;
        if (held == Qt::NoModifier)
            Place(row, "Move picture", [&] { MovePictureByKey(t, set, row.Picture, key); });
        else if (held == Qt::ShiftModifier && row.Picture == PlacedPicture::Standard)
            Place(row, "Size frame", [&] { MoveHandleByKey(t.Standard, set.Cards.CurrentRecord(), key); });
    }
}

void PreviewController::ShowTip(const Box* box, QPoint globalPoint)
{
    QString tip;
    if (box && box->FontOfSet && box->FontClicks > 0)
        tip = box->FontClicks == 1 ? QStringLiteral("Click to change the font")
                                   : QStringLiteral("Double-click to change the font");
    for (const PlacementRow& row : Placements()) {
        if (box == &row.Image)
            tip = QStringLiteral("Drag the picture, or move it with the arrow keys");
        else if (row.Handle && row.Handle == box)
            tip = QStringLiteral("Drag to size the frame");
    }
    QToolTip::showText(globalPoint, tip, &m_parts.Preview);
}

} // namespace deckforge
