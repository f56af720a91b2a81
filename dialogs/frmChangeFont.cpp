// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/frmChangeFont.h"

#include "compose/CharacterCard.h"
#include "compose/FontScheme.h"
#include "compose/LargeCard.h"
#include "compose/SetView.h"
#include "compose/StandardCard.h"
#include "core/modInfo.h"
#include "dialogs/CardPreview.h"
#include "dialogs/Choices.h"
#include "dialogs/Handlers.h"
#include "dialogs/TabKeys.h"
#include "platform/Version.h"
#include "ui_frmChangeFont.h"

#include <QButtonGroup>
#include <QMouseEvent>
#include <QScreen>
#include <algorithm>
#include <array>
#include <iterator>

namespace deckforge {

namespace {

/// A font that the dialog offers for a sample card.
struct FontOption {
    const char* Caption;
    FontSpec SetHeader::*Font;
};

/// A sample card with its fonts, in the order of their option buttons.
struct FontSample {
    const char* Caption; ///< of its tab
    std::vector<FontOption> Options;
};

constexpr int PlayingPieceSample = 3;

const std::array<FontSample, 4>& FontSamples()
{
    static const std::array<FontSample, 4> samples = {{
        {"Card",
         {{"Card &Type", &SetHeader::FontType},
          {"Card &Name", &SetHeader::FontTitle},
          {"&Bold text", &SetHeader::FontBold},
          {"&Information text", &SetHeader::FontInformation},
          {"&Autonumber", &SetHeader::FontAutonumber}}},
        {"Large Card",
         {{"Card &Title", &SetHeader::FontTitleLarge},
          {"&Information text", &SetHeader::FontInformationLarge}}},
        {"Character",
         {{"Character &Name", &SetHeader::FontCharacter},
          {"&Information", &SetHeader::FontAlignment},
          {"Special &title", &SetHeader::FontSpecialTitle},
          {"&Special abilities", &SetHeader::FontSpecial}}},
        {"Playing Piece", {{"Character &Name", &SetHeader::FontPlayingPiece}}},
    }};
    return samples;
}

constexpr char Information[] = "Gloamlink - Varnhelm is the website for you when you would like more "
                               "information about this Varnhelm Deck Forge.\r\n"
                               "\r\n"
                               "There is also alot of of other good stuff for the Varnhelm Game.\r\n"
                               "\r\n"
                               "Point your browser to ";
constexpr char SpecialAbilities[] =
    "1) You may hack into the Matrix at will.\r\n"
    "\r\n"
    "2) You are fluent in the binary language and can calculate timeframes in hex.\r\n"
    "\r\n"
    "3) You need a life.";

/// Adds one sample of each kind.
void FillSampleSet(CardSet& set)
{
    Card& card = set.Cards[1];
    card.Title = QStringLiteral("CARD NAME");
    card.BoldText = QStringLiteral("STRENGTH 3");
    card.Info = QStringLiteral("Information about the card.");
    card.Artist = QStringLiteral("Artist");
    AddElement<LargeCard>(set);
    set.LargeCards[1].Title = QStringLiteral("CARD TITLE");
    set.LargeCards[1].Info = QLatin1String(Information) + QLatin1String(WebAddress);
    AddElement<Character>(set);
    set.Characters[1].Name = QStringLiteral("CHARACTER NAME");
    set.Characters[1].SpecialAbilities = QString::fromLatin1(SpecialAbilities);
    set.Header.Autonumber = true;
}

/// Centres the standard card and the playing piece on the larger samples.
void CentreSmallCards(CardTemplates& t)
{
    const int wide = t.Large.picCardLarge.Left + t.Large.picCardLarge.Width / 2;
    for (Box* small : {&t.Standard.picCard, &t.PlayingPiece.picPlayingPiece})
        small->Left = wide - small->Width / 2;
}

/// The boxes of the fronts of the sample cards.
std::vector<Box*> SampleBoxes(const CardTemplates& t)
{
    std::vector<Box*> fronts = t.Boxes();
    std::erase_if(fronts, [&](const Box* box) {
        return box == &t.Standard.picBack || box == &t.Large.picBackLarge ||
               box == &t.Character.picCharacterBack || &box->List == &t.NewBack;
    });
    return fronts;
}

class FontSchemeDialog final : public QDialog {
public:
    FontSchemeDialog(SetHeader& header, UserPort& user, QWidget* window)
        : QDialog(window), m_user(user), m_header(header), m_options(this)
    {
        m_form.setupUi(this);
        BuildSamples();
        QRadioButton* const options[] = {m_form.optFPlace0, m_form.optFPlace1, m_form.optFPlace2,
                                         m_form.optFPlace3, m_form.optFPlace4};
        for (QRadioButton* option : options) {
            m_options.addButton(option, static_cast<int>(m_options.buttons().size()));
            option->installEventFilter(this);
        }
        for (const FontSample& sample : FontSamples())
            m_form.tbCard->addTab(QString::fromLatin1(sample.Caption));
        SetDemoFont();
        ShowSample();
        connect(m_form.tbCard, &QTabBar::currentChanged, this, [this] { ShowSample(); });
        BindTabKeys(*m_form.tbCard);
        OnClick(m_user, m_form.cmdChangeFont, this, [this] { ChangeFont(); });
        OnClick(m_user, m_form.cmdReset, this, [this] { Reset(); });
        OnClick(m_user, m_form.picArtistColor, this, [this] { ChooseArtistColour(); });
        connect(m_form.cmdDone, &QPushButton::clicked, this, &QDialog::accept);
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonDblClick &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            m_form.cmdChangeFont->click();
            return true; // otherwise the option waits for a mouse release, which the font dialog took
        }
        return QDialog::eventFilter(watched, event);
    }

private:
    /// The samples are laid out by the Show functions and shown by the same preview as in the window, without
    /// mouse events.
    void BuildSamples()
    {
        static_cast<void>(InitForm(m_samples));
        FillSampleSet(m_samples.Set);
        static_cast<void>(deckforge::ShowCard(m_samples, 1));
        static_cast<void>(deckforge::ShowLargeCard(m_samples, 1));
        static_cast<void>(deckforge::ShowCharacter(m_samples, 1));
        ShowNumbers(m_samples.Templates, m_samples.Set);
        CentreSmallCards(m_samples.Templates);
        m_preview = new CardPreview(SampleBoxes(m_samples.Templates), this);
        m_preview->setAccessibleName(QStringLiteral("Sample card"));
        m_preview->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_preview->setFocusPolicy(Qt::NoFocus);
        const QSize room = screen()->availableSize() / 3 * 2;
        const QSize doubled = m_preview->sizeHint();
        if (doubled.width() > room.width() || doubled.height() > room.height())
            m_preview->SetZoom(1);
        m_form.cardLayout->addWidget(m_preview);
    }

    /// Applies the fonts of the set to the sample cards.
    void SetDemoFont()
    {
        SetFont(m_samples.Templates, m_header);
        DrawArtistCredit(m_samples.Templates.Standard, m_samples.Surfaces.picArtist, m_samples.Set.Cards[1],
                         m_header.ArtistColor);
        m_form.picArtistColor->SetColour(QColor(ToRgb(m_header.ArtistColor)));
        m_preview->update();
    }

    /// The checked option stays checked, even if the sample does not have it.
    void ShowSample()
    {
        const int sample = m_form.tbCard->currentIndex();
        CardTemplates& t = m_samples.Templates;
        Box* const cards[] = {&t.Standard.picCard, &t.Large.picCardLarge, &t.Character.picCharacter,
                              &t.PlayingPiece.picPlayingPiece};
        for (int i = 0; i < static_cast<int>(std::size(cards)); ++i)
            cards[i]->Visible = i == sample;
        const auto& options = FontSamples().at(static_cast<std::size_t>(sample)).Options;
        const auto chosen = static_cast<std::size_t>(m_options.checkedId());
        const std::size_t tabStop = chosen < options.size() ? chosen : 0;
        for (QAbstractButton* option : m_options.buttons()) {
            const auto row = static_cast<std::size_t>(m_options.id(option));
            option->setFocusPolicy(row == tabStop ? Qt::StrongFocus : Qt::ClickFocus);
            option->setVisible(row < options.size());
            if (row < options.size())
                option->setText(QString::fromLatin1(options[row].Caption));
        }
        m_preview->update();
    }

    /// Kept: the checked option may belong to another sample. The playing piece then has no font to change,
    /// and all other samples change the font of the autonumber.
    void ChangeFont()
    {
        const int sample = m_form.tbCard->currentIndex();
        const auto& options = FontSamples().at(static_cast<std::size_t>(sample)).Options;
        const auto option = static_cast<std::size_t>(m_options.checkedId());
        if (option < options.size())
            ChooseFont(m_user, m_header.*options[option].Font);
        else if (sample != PlayingPieceSample)
            ChooseFont(m_user, m_header.FontAutonumber);
        SetDemoFont();
    }

    void Reset()
    {
        SetDefaultFont(m_header);
        SetDemoFont();
    }

    void ChooseArtistColour()
    {
        const auto colour = m_user.AskColour(QStringLiteral("Choose colour"), m_header.ArtistColor);
        if (!colour)
            return;
        m_header.ArtistColor = *colour;
        SetDemoFont();
    }

    UserPort& m_user;
    SetHeader& m_header;
    Workshop m_samples;
    Ui::frmChangeFont m_form;
    QButtonGroup m_options;
    CardPreview* m_preview = nullptr;
};

} // namespace

void EditFonts(SetHeader& header, UserPort& user, QWidget* window)
{
    FontSchemeDialog dialog(header, user, window);
    dialog.exec();
}

} // namespace deckforge
