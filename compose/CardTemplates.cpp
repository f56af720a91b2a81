// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/CardTemplates.h"

#include "platform/Version.h"

namespace deckforge {

namespace {

constexpr double TinyPoints = 5.25;

} // namespace

BoxDesign WholeCard(bool isVisible)
{
    return {.Look = BoxLook::Surface, .Visible = isVisible, .Outlined = true};
}

BoxDesign CardNumber(Alignment align, int fontClicks)
{
    return {.Visible = false,
            .Align = align,
            .FontOfSet = &SetHeader::FontAutonumber,
            .FontClicks = fontClicks,
            .Font = SmallFont(TinyPoints)};
}

BoxDesign VersionMark()
{
    return {.Caption = QStringLiteral("QDW %1.%2").arg(VersionMajor).arg(VersionMinor),
            .Align = Alignment::Centre,
            .Font = SmallFont(TinyPoints, false, LightGrey)};
}

CardTemplate::CardTemplate(int scale) : BoxList(scale) {}

BoxDesign CardTemplate::TypeName(Alignment align)
{
    return {.Align = align, .FontOfSet = &SetHeader::FontType, .FontClicks = 2};
}

LargeCardTemplate::LargeCardTemplate(int scale) : BoxList(scale) {}

CharacterTemplate::CharacterTemplate(int scale) : BoxList(scale)
{
    for (Box& strip : picCharAttrDisp)
        strip.Surface->SetBackColor(Black);
}

BoxDesign CharacterTemplate::WhiteText(const QString& caption, FontSpec SetHeader::*fontOfSet)
{
    BoxDesign text{
        .Caption = caption, .Align = Alignment::Centre, .Form = TextForm::Line, .FontOfSet = fontOfSet};
    text.Font.Bold = true;
    text.Font.Color = White;
    return text;
}

BoxDesign CharacterTemplate::Detail(const QString& caption)
{
    return {.Caption = caption, .Form = TextForm::Line, .FontOfSet = &SetHeader::FontAlignment};
}

PlayingPieceTemplate::PlayingPieceTemplate(int scale) : BoxList(scale) {}

NewBackTemplate::NewBackTemplate(int scale) : BoxList(scale) {}

CardTemplates::CardTemplates(int scale)
    : Standard(scale), Large(scale), Character(scale), PlayingPiece(scale), NewBack(scale)
{
}

std::vector<Box*> CardTemplates::Boxes() const
{
    std::vector<Box*> all;
    for (const BoxList* list :
         std::initializer_list<const BoxList*>{&Standard, &Large, &Character, &PlayingPiece, &NewBack})
        all.insert(all.end(), list->Boxes.begin(), list->Boxes.end());
    return all;
}

} // namespace deckforge
