#include "compose/CharacterCard.h"
#include "compose/FontScheme.h"
#include "compose/StandardCard.h"
#include "dialogs/CardPreview.h"
#include "dialogs/Choices.h"
#include "editor/frmQDW_Tables.h"
#include "platform/Twips.h"
#include "ui_fraCard.h"
#include "ui_fraCharacter.h"
#include "ui_fraLargeCard.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLayout>
#include <QScrollArea>
#include <QShortcut>
#include <QToolTip>
#include <algorithm>

namespace deckforge {

void frmQDW::BindPreview()
{
    On(m_preview, &CardPreview::Pressed, [this](const Box*, QPoint point) { m_dragStart = point; });
    On(m_preview, &CardPreview::Dragged,
       [this](const Box* box, QPoint point, QPoint moved) { PreviewDragged(box, point, moved); });
    On(m_preview, &CardPreview::Clicked, [this](const Box* box) { LabelClicked(box, FontClicks::One); });
    On(m_preview, &CardPreview::DoubleClicked,
       [this](const Box* box) { LabelClicked(box, FontClicks::Two); });
    On(m_preview, &CardPreview::KeyPressed,
       [this](const Box* picture, Qt::Key key, Qt::KeyboardModifiers held) {
           PreviewKey(picture, key, held);
       });
    On(m_preview, &CardPreview::TipWanted, [this](const Box* box, QPoint point) { ShowTip(box, point); });
    On(m_zooms, &QButtonGroup::idClicked, [this](int zoom) { SetZoom(zoom); });
    const auto onKey = [this](const QKeySequence& key, int step) {
        On(new QShortcut(key, this), &QShortcut::activated,
           [this, step] { SetZoom(m_preview->Zoom() + step); });
    };
    onKey(QKeySequence::ZoomIn, 1);
    onKey(Qt::CTRL | Qt::Key_Equal, 1); // the same key without Shift
    onKey(QKeySequence::ZoomOut, -1);
}

std::array<frmQDW::PlacementRow, 4> frmQDW::Placements()
{
    const CardTemplates& t = m_workshop.Templates;
    return {{
        {&t.Standard.picFrame, &t.Standard.picImage, &t.Standard.lblPicSize, PlacedPicture::Standard,
         &frmQDW::TellFrameSize},
        {&t.Large.picFrameLarge, &t.Large.picImageLarge, &t.Large.lblPicSizeLarge, PlacedPicture::Large,
         &frmQDW::TellLargeFrameSize},
        {&t.Character.picFrameCharacter, &t.Character.picImageCharacter, &t.Character.lblPicSizeCharacter,
         PlacedPicture::Character, &frmQDW::TellCharacterFrameSize},
        {&t.PlayingPiece.picPlayingPieceFrame, &t.PlayingPiece.picPlayingPieceImage, nullptr,
         PlacedPicture::PlayingPiece, nullptr},
    }};
}

void frmQDW::LabelClicked(const Box* box, FontClicks clicks)
{
    for (const LabelFont& row : LabelFonts(m_workshop.Templates)) {
        if (row.Label != box || row.Opens != clicks)
            continue;
        FontSpec& font = m_workshop.Set.Header.*row.Font;
        ChooseFont(m_workshop.User, font);
        HintAtUnsavable(font.Name);
        SetFont(m_workshop.Templates, m_workshop.Set.Header);
        m_preview->update();
    }
}

/// A picture goes as far as the pointer. A handle stops at its bounds: it goes to where the pointer holds it.
void frmQDW::PreviewDragged(const Box* box, QPoint point, QPoint moved)
{
    const QPoint toPointer = point - m_dragStart;
    for (const PlacementRow& row : Placements()) {
        if (box == row.Image)
            MovePicture(m_workshop, row.Which, moved.x() * TwipsPerPixelX, moved.y() * TwipsPerPixelY);
        else if (box == row.Handle)
            MoveHandle(m_workshop, row.Which,
                       row.Which == PlacedPicture::Standard ? toPointer.y() : toPointer.x());
        else
            continue;
        Run(row.After);
        m_preview->update();
    }
}

void frmQDW::PreviewKey(const Box* picture, Qt::Key key, Qt::KeyboardModifiers held)
{
    held.setFlag(Qt::KeypadModifier, false);
    for (const PlacementRow& row : Placements()) {
        if (picture != row.Image)
            continue;
        if (held == Qt::NoModifier)
            MovePictureByKey(m_workshop, row.Which, key);
        else if (held == Qt::ShiftModifier && row.Which == PlacedPicture::Standard)
            MoveHandleByKey(m_workshop, key);
        Run(row.After);
        m_preview->update();
    }
}

void frmQDW::ShowTip(const Box* box, QPoint globalPoint)
{
    QString tip;
    for (const LabelFont& row : LabelFonts(m_workshop.Templates)) {
        if (row.Label == box && row.Opens != FontClicks::None)
            tip = row.Opens == FontClicks::One ? QStringLiteral("Click to change the font")
                                               : QStringLiteral("Double-click to change the font");
    }
    for (const PlacementRow& row : Placements()) {
        if (row.Image == box)
            tip = QStringLiteral("Drag the picture, or move it with the arrow keys");
        else if (row.Handle && row.Handle == box)
            tip = QStringLiteral("Drag to size the frame");
    }
    QToolTip::showText(globalPoint, tip, m_preview);
}

void frmQDW::TellFrameSize()
{
    m_card->lblPicDim->setText(FrameSizeText(m_workshop.Templates.Standard.picFrame));
}

void frmQDW::TellLargeFrameSize()
{
    m_large->lblPicDimLarge->setText(FrameSizeText(m_workshop.Templates.Large.picFrameLarge));
}

void frmQDW::TellCharacterFrameSize()
{
    const CardTemplates& t = m_workshop.Templates;
    m_character->lblPicDimChar->setText(CharacterFrameSizeText(t.Character.picFrameCharacter));
    m_character->lblPicDimPlay->setText(CharacterFrameSizeText(t.PlayingPiece.picPlayingPieceFrame));
}

/// The window grows and shrinks with the preview as far as the screen has room.
void frmQDW::SetZoom(int zoom)
{
    m_preview->SetZoom(zoom);
    m_zooms->button(m_preview->Zoom())->setChecked(true);
    m_preview->resize(m_preview->sizeHint());
    m_previewArea->updateGeometry();
    // Up to the window, or else it would want what the zoom before did.
    for (QWidget* parent = m_previewArea->parentWidget(); parent; parent = parent->parentWidget()) {
        if (QLayout* const layout = parent->layout())
            layout->activate();
    }
    SizeToFit();
}

} // namespace deckforge
