#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "dialogs/CardPreview.h"
#include "editor/frmQDW.h"
#include "ui_fraCard.h"
#include "ui_fraSet.h"

#include <utility>

namespace deckforge {

namespace {

// The template of a record, and the frame of a template.

CardTemplate& TemplateOf(CardTemplates& templates, const Card& /*card*/)
{
    return templates.Standard;
}

LargeCardTemplate& TemplateOf(CardTemplates& templates, const LargeCard& /*card*/)
{
    return templates.Large;
}

CharacterTemplate& TemplateOf(CardTemplates& templates, const Character& /*character*/)
{
    return templates.Character;
}

Box& FrameOf(CardTemplate& t)
{
    return t.picFrame;
}

Box& FrameOf(LargeCardTemplate& t)
{
    return t.picFrameLarge;
}

Box& FrameOf(CharacterTemplate& t)
{
    return t.picFrameCharacter;
}

} // namespace

template <class Record>
void frmQDW::ShowPictureClicked()
{
    const Record& record = Current<Record>();
    ShowPictureFrame(TemplateOf(m_workshop.Templates, record), record.ShowPicture);
    m_preview->SettleFocus();
}

template <class Record>
void frmQDW::FrameClicked()
{
    const Record& record = Current<Record>();
    FrameOf(TemplateOf(m_workshop.Templates, record)).Border =
        record.Frame ? BorderStyle::Single : BorderStyle::None;
}

template void frmQDW::ShowPictureClicked<Card>();
template void frmQDW::ShowPictureClicked<LargeCard>();
template void frmQDW::ShowPictureClicked<Character>();
template void frmQDW::FrameClicked<Card>();
template void frmQDW::FrameClicked<LargeCard>();
template void frmQDW::FrameClicked<Character>();

/// The first letter of an attribute stands for its name; typing on replaces the rest of it.
void frmQDW::CompleteBoldText()
{
    if (m_loading) // a card that has the letter alone keeps it
        return;
    QLineEdit& txtBold = *m_card->txtBold;
    const QString text = txtBold.text();
    const auto complete = [&](const QString& word, int selected) {
        txtBold.setText(word);
        txtBold.setSelection(1, selected);
    };
    if (text == QLatin1String("S"))
        complete(QStringLiteral("STRENGTH "), 8);
    else if (text == QLatin1String("C"))
        complete(QStringLiteral("CRAFT "), 5);
}

void frmQDW::BoldTextChanged()
{
    PlaceBoldText(m_workshop.Templates.Standard);
}

void frmQDW::ArtistChanged()
{
    DrawArtistCredit(m_workshop, Current<Card>().Artist);
}

void frmQDW::OneLineClicked()
{
    ShowCard(m_workshop.Set.Cards.Current);
}

void frmQDW::ResizeClicked()
{
    if (Current<Card>().Resize)
        CentrePicture(m_workshop);
    ShowCard(m_workshop.Set.Cards.Current);
}

void frmQDW::LargeResizeClicked()
{
    ShowLargeCard(m_workshop.Set.LargeCards.Current);
}

void frmQDW::NameChanged()
{
    m_workshop.Templates.PlayingPiece.lblPlayingPieceName.Caption = Current<Character>().Name;
}

template <int Index>
void frmQDW::AttributeChanged()
{
    DrawCharAttribute(m_workshop, Index, Current<Character>().*CharacterAttributes[Index]);
}

template void frmQDW::AttributeChanged<0>();
template void frmQDW::AttributeChanged<1>();
template void frmQDW::AttributeChanged<2>();
template void frmQDW::AttributeChanged<3>();

/// A picture that is missing is told once, and not again at every letter of the text.
void frmQDW::BackChanged()
{
    const QString picture = Current<NewCardBack>().Picture;
    try {
        ShowNewCardBack(m_workshop.Set.NewCardBacks.Current);
        m_missingBack.clear();
    } catch (const RunTimeError&) {
        if (std::exchange(m_missingBack, picture) != picture)
            throw;
    }
}

void frmQDW::SetnameChanged()
{
    QString name = m_workshop.Set.Header.SetName;
    name.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); // a mark of Qt's that would not be shown
    setWindowTitle(name + QStringLiteral(" - Varnhelm Deck Forge"));
}

void frmQDW::AutonumberClicked()
{
    ShowNumbers(m_workshop);
}

void frmQDW::NoBackClicked()
{
    CardTemplate& t = m_workshop.Templates.Standard;
    t.picBack.Visible = t.picCard.Visible && !m_workshop.Set.Header.NoBack; // not beside the other kinds
}

} // namespace deckforge
