// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/SetView.h"

#include "compose/FontScheme.h"
#include "compose/StandardCard.h"
#include "core/PictureFolders.h"
#include "core/modInfo.h"

namespace deckforge {

namespace {

/// A symbol in the lower left or right corner of its parent.
struct SymbolPlace {
    Box& Symbol;
    const Box& Parent;
    bool AtRightEdge;
    int Margin;
};

constexpr int SymbolMargin = 2;

void PlaceSymbol(const SymbolPlace& place, const Picture& symbol)
{
    Box& box = place.Symbol;
    box.Visible = !symbol.IsEmpty();
    box.ShowAtNaturalSize(symbol);
    box.Left = place.AtRightEdge ? place.Parent.Width - box.Width - place.Margin : 0;
    box.Top = place.Parent.Height - box.Height - place.Margin;
}

void PlaceSymbols(CardTemplates& t, const Picture& symbol, const SymbolPlace& onCharacter)
{
    PlaceSymbol({t.Standard.picSymbol, t.Standard.picCard, false, SymbolMargin}, symbol);
    PlaceSymbol({t.Large.picSymbolLarge, t.Large.picCardLarge, true, SymbolMargin}, symbol);
    PlaceSymbol(onCharacter, symbol);
}

} // namespace

ViewFailures InitForm(Workshop& workshop)
{
    InitSet(workshop.Set);
    ViewFailures failures{.Symbol = ShowSet(workshop)};
    failures.FirstCard = ShowCard(workshop, workshop.Set.Cards.Current);
    return failures;
}

std::optional<RunTimeError> ShowSet(Workshop& workshop)
{
    CardTemplate& card = workshop.Templates.Standard;
    workshop.Pictures.SearchIn(FoldersOfPictures(workshop.Set));
    std::optional<RunTimeError> failure;
    Picture symbol;
    try {
        symbol = workshop.Pictures.LoadPicture(workshop.Set.Header.Symbol);
    } catch (const RunTimeError& error) {
        failure = error;
    }
    CharacterTemplate& character = workshop.Templates.Character;
    PlaceSymbols(workshop.Templates, symbol,
                 {character.picSymbolCharacter, character.picBackgroundChar, true, SymbolMargin});
    ApplyOpenedSetFonts(card, workshop.Set.Header);
    ShowNumbers(workshop.Templates, workshop.Set);
    card.picBack.Visible = !workshop.Set.Header.NoBack;
    return failure;
}

void ShowChosenSymbol(CardTemplates& templates, const Picture& symbol)
{
    constexpr int margin = 16;
    CharacterTemplate& character = templates.Character;
    PlaceSymbols(templates, symbol, {character.picSymbolCharacter, character.picCharacter, true, margin});
}

void HideSymbol(CardTemplates& templates)
{
    for (Box* symbol : {&templates.Standard.picSymbol, &templates.Large.picSymbolLarge}) {
        symbol->ShowAtNaturalSize({});
        symbol->Visible = false;
    }
}

void ShowNumbers(CardTemplates& templates, const CardSet& set)
{
    const auto show = [&](Box& label, int16 current) {
        label.Caption = QString::number(current);
        label.Visible = set.Header.Autonumber;
    };
    show(templates.Standard.lblAutonumber, set.Cards.Current);
    show(templates.Large.lblAutonumberLarge, set.LargeCards.Current);
    show(templates.Character.lblAutonumberCharacter, set.Characters.Current);
}

ViewFailures ShowOpenedSet(Workshop& workshop)
{
    CardSet& set = workshop.Set;
    ViewFailures failures{.Symbol = ShowSet(workshop)};
    set.Cards.Current = 1;
    failures.FirstCard = ShowCard(workshop, set.Cards.Current);
    set.LargeCards.Current = set.LargeCards.Count() > 0 ? 1 : 0;
    set.Characters.Current = set.Characters.Count() > 0 ? 1 : 0;
    return failures;
}

} // namespace deckforge
