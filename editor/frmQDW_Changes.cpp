#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "dialogs/CardPreview.h"
#include "editor/frmQDW.h"
#include "ui_fraCard.h"
#include "ui_fraSet.h"

namespace deckforge {

namespace {

BorderStyle BorderFor(bool hasFrame)
{
    return hasFrame ? BorderStyle::Single : BorderStyle::None;
}

} // namespace

/// The first letter of an attribute stands for its name; typing on replaces the rest of it.
void frmQDW::CompleteBoldText()
{
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
    ShowCard(m_workshop.Set.CurrentCard);
}

void frmQDW::ShowPictureClicked()
{
    ShowPictureFrame(m_workshop.Templates.Standard, Current<Card>().ShowPicture);
    m_preview->SettleFocus();
}

void frmQDW::FrameClicked()
{
    m_workshop.Templates.Standard.picFrame.Border = BorderFor(Current<Card>().Frame);
}

void frmQDW::ResizeClicked()
{
    if (Current<Card>().Resize)
        CentrePicture(m_workshop);
    ShowCard(m_workshop.Set.CurrentCard);
}

void frmQDW::ShowLargePictureClicked()
{
    ShowLargeFrame(m_workshop.Templates.Large, Current<LargeCard>().ShowPicture);
    m_preview->SettleFocus();
}

void frmQDW::LargeFrameClicked()
{
    m_workshop.Templates.Large.picFrameLarge.Border = BorderFor(Current<LargeCard>().Frame);
}

void frmQDW::LargeResizeClicked()
{
    ShowLargeCard(m_workshop.Set.CurrentLargeCard);
}

void frmQDW::NameChanged()
{
    m_workshop.Templates.PlayingPiece.lblPlayingPieceName.Caption = Current<Character>().Name;
}

template <int Index>
void frmQDW::AttributeChanged()
{
    constexpr std::array<QString Character::*, 4> values = {&Character::Strength, &Character::Craft,
                                                            &Character::Gold, &Character::Lives};
    DrawCharAttribute(m_workshop, Index, Current<Character>().*values[Index]);
}

template void frmQDW::AttributeChanged<0>();
template void frmQDW::AttributeChanged<1>();
template void frmQDW::AttributeChanged<2>();
template void frmQDW::AttributeChanged<3>();

void frmQDW::ShowCharacterPictureClicked()
{
    ShowCharacterFrame(m_workshop.Templates.Character, Current<Character>().ShowPicture);
    m_preview->SettleFocus();
}

void frmQDW::CharacterFrameClicked()
{
    m_workshop.Templates.Character.picFrameCharacter.Border = BorderFor(Current<Character>().Frame);
}

void frmQDW::BackChanged()
{
    ShowNewCardBack(m_workshop.Set.CurrentNewCardBack);
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
