// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/CharacterCard.h"
#include "compose/LargeCard.h"
#include "compose/NewBack.h"
#include "compose/StandardCard.h"
#include "files/SetFileFormat.h"
#include "support/EveryKind.h"
#include "support/WorkshopTest.h"

namespace deckforge {

enum On { OnCard, OnLarge, OnHero, OnPiece, OnBack };

/// The bounding rectangle of the pixels that differ.
inline QRect Changed(const QImage& before, const QImage& after)
{
    return Where(after.rect(), [&](int x, int y) { return before.pixel(x, y) != after.pixel(x, y); });
}

/// One element of each kind without texts and pictures, with thirteen different fonts.
class GeometryTest : public WorkshopTest {
protected:
    GeometryTest()
    {
        Clear(Standard);
        Large = {};
        Hero = {};
        Large.ShowPicture = Hero.ShowPicture = true;
        Large.FrameHeight = Hero.FrameHeight = 100;
        Large.Color = Cream;
        Back.BackText.clear();
        int place = 0;
        for (FontSpec SetHeader::*font : setFile::Fonts) {
            Header().*font = SmallFont(5 + 0.2 * place, place % 2 == 1, 0x0A1020 * place);
            ++place;
        }
        Back.Font = SmallFont(16, true, Red);
        for (const On kind : {OnCard, OnLarge, OnHero, OnBack})
            Composed(kind); // once before: the first outlines have the colour of a new surface
    }

    static void Clear(Card& card)
    {
        card = {};
        card.FrameHeight = 60;
        card.CardBack = 1;
        card.Color = Cream;
    }

    QImage Composed(On kind)
    {
        EXPECT_FALSE(kind == OnCard    ? ShowCard(Shop, 1)
                     : kind == OnLarge ? ShowLargeCard(Shop, 1)
                     : kind == OnBack  ? std::nullopt
                                       : ShowCharacter(Shop, 1));
        if (kind == OnBack) {
            DrawNewCardBack(Shop, 1);
        }
        return (kind >= OnPiece ? Shop.Surfaces.picACardPP : Surface()).Image().Pixels();
    }

    CardSet& Set = AddOneOfEachKind(Shop.Set);
    Card& Standard = Set.Cards[1];
    LargeCard& Large = Set.LargeCards[1];
    Character& Hero = Set.Characters[1];
    NewCardBack& Back = Set.NewCardBacks[1];
    CardTemplates& Boxes = Shop.Templates;
    const FontSpec MarkFont = SmallFont(5.25, false, LightGrey);
};

} // namespace deckforge
