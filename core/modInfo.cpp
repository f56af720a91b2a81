// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modInfo.h"

#include "core/Vocabulary.h"
#include "platform/Paths.h"

namespace deckforge {

namespace {

constexpr int16 NewFrameHeight = 105;
constexpr int16 NewFrameWidth = 121;

} // namespace

void SetDefaultFont(SetHeader& header)
{
    header.FontType = SmallFont(7);
    header.FontNumber = SmallFont(7);
    header.FontTitle = SmallFont(7, true);
    header.FontBold = SmallFont(7, true);
    header.FontInformation = SmallFont(7);
    header.FontAutonumber = SmallFont(5);
    header.FontTitleLarge = SmallFont(7, true);
    header.FontInformationLarge = SmallFont(7);
    header.FontCharacter = SmallFont(7, true, White);
    header.FontSpecialTitle = SmallFont(7, true);
    header.FontSpecial = SmallFont(7);
    header.FontAlignment = SmallFont(6, true);
    header.FontPlayingPiece = SmallFont(7, true);
}

void NewSet(CardSet& set)
{
    set.Header = {};
    set.File.reset();
    set.Header.SetName = QStringLiteral("New set");
    set.Header.SaveTo = ProgramFolder();
    set.Header.ArtistColor = LightGrey;
    SetDefaultFont(set.Header);
}

void InitSet(CardSet& set)
{
    InitCardTypes(set);
    InitCardBacks(set);
    set.LastBackground.clear();
    NewSet(set);

    MakeFirstElement<Card>(set);
    set.LargeCards.Clear();
    set.LargeCards.Current = 0;
    set.Characters.Clear();
    set.Characters.Current = 0;
}

void InitElement(const CardSet& set, Card& card, int16 n)
{
    card.Title = QStringLiteral("CARD %1").arg(n);
    card.Copies = 1;
    card.Type = set.LastType;
    card.SubType = set.LastSubType;
    card.TypeReversed = set.LastTypeReversed;
    card.SubTypeReversed = set.LastSubTypeReversed;
    card.Number = QString::number(set.LastNumber);
    card.ShowPicture = true;
    card.FrameHeight = NewFrameHeight;
    card.Frame = true;
    card.Background = set.LastBackground;
    card.CardBack = set.LastCardBack;
    card.Color = White;
}

void InitElement(const CardSet& /*set*/, LargeCard& card, int16 n)
{
    card.Title = QStringLiteral("LARGE CARD %1").arg(n);
    card.Copies = 1;
    card.ShowPicture = true;
    card.FrameHeight = NewFrameWidth;
    card.Frame = true;
    card.Color = White;
}

void InitElement(const CardSet& /*set*/, Character& character, int16 n)
{
    character.Name = QStringLiteral("CHARACTER %1").arg(n);
    character.StartArea = QStringLiteral("VILLAGE");
    character.Alignment = QStringLiteral("NEUTRAL");
    character.Strength = QStringLiteral("3");
    character.Craft = QStringLiteral("3");
    character.Gold = QStringLiteral("---");
    character.Lives = QStringLiteral("---");
    character.FrameHeight = NewFrameWidth;
    character.ShowPicture = true;
}

void InitElement(const CardSet& set, NewCardBack& back, int16 /*n*/)
{
    back.Name = QStringLiteral("Back 1"); // Kept: every new back has this name
    back.BackText = set.Header.SetName;
    back.Font = {.Name = QStringLiteral("Arial"), .Size = 18, .Bold = true, .Italic = false, .Color = White};
    back.InnerColor = Black;
    back.FrameColor = White;
    back.BackColor = White;
}

QString PositionText(int16 index, int16 count)
{
    return QStringLiteral("%1 (%2)").arg(index).arg(count);
}

} // namespace deckforge
