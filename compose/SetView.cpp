#include "compose/SetView.h"

#include "compose/FontScheme.h"
#include "compose/StandardCard.h"
#include "core/modInfo.h"
#include "platform/Version.h"

namespace deckforge {

namespace {

struct SymbolPlace {
    Box& Symbol;
    const Box& Parent;
    bool AtRightEdge;
};

std::array<SymbolPlace, 3> SymbolPlaces(CardTemplates& templates)
{
    return {{{templates.Standard.picSymbol, templates.Standard.picCard, false},
             {templates.Large.picSymbolLarge, templates.Large.picCardLarge, true},
             {templates.Character.picSymbolCharacter, templates.Character.picBackgroundChar, true}}};
}

/// The symbol of the set; none when it has none or it cannot be loaded.
Picture LoadSymbol(Workshop& workshop)
{
    try {
        return workshop.Pictures.LoadPicture(workshop.Set.Header.Symbol);
    } catch (const RunTimeError& error) {
        TellUntrapped(workshop.User, error);
        return {};
    }
}

void PlaceSymbols(Workshop& workshop)
{
    constexpr int margin = 2;
    const Picture symbol = LoadSymbol(workshop);
    for (const SymbolPlace& place : SymbolPlaces(workshop.Templates)) {
        Box& box = place.Symbol;
        box.Visible = !symbol.IsEmpty();
        box.ShowAtNaturalSize(symbol, {box.Width, box.Height});
        box.Left = place.AtRightEdge ? place.Parent.Width - box.Width - margin : 0;
        box.Top = place.Parent.Height - box.Height - margin;
    }
}

} // namespace

void InitForm(Workshop& workshop)
{
    const QString versionMark = QStringLiteral("QDW %1.%2").arg(VersionMajor).arg(VersionMinor);
    for (Box* watermark : workshop.Templates.lblWatermark())
        watermark->Caption = versionMark;
    InitSet(workshop.Set);
    ShowSet(workshop);
    ShowCard(workshop, workshop.Set.CurrentCard);
}

void ShowSet(Workshop& workshop)
{
    CardTemplate& card = workshop.Templates.Standard;
    PlaceSymbols(workshop);
    DressOpenedSet(card, workshop.Set.Header);
    ShowNumbers(workshop);
    card.picBack.Visible = !workshop.Set.Header.NoBack;
}

void ShowNumbers(Workshop& workshop)
{
    CardTemplates& templates = workshop.Templates;
    const CardSet& set = workshop.Set;
    const auto show = [&](Box& label, int16 current) {
        label.Caption = QString::number(current);
        label.Visible = set.Header.Autonumber;
    };
    show(templates.Standard.lblAutonumber, set.CurrentCard);
    show(templates.Large.lblAutonumberLarge, set.CurrentLargeCard);
    show(templates.Character.lblAutonumberCharacter, set.CurrentCharacter);
}

void ShowOpenedSet(Workshop& workshop)
{
    CardSet& set = workshop.Set;
    ShowSet(workshop);
    set.CurrentCard = 1;
    ShowCard(workshop, set.CurrentCard);
    set.CurrentLargeCard = set.LargeCardCount > 0 ? 1 : 0;
    set.CurrentCharacter = set.CharacterCount > 0 ? 1 : 0;
}

} // namespace deckforge
