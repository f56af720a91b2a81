// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/FontOptions.h"

namespace deckforge {

namespace {

constexpr int PlayingPieceSample = 3;

} // namespace

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

FontSpec SetHeader::*FontToChange(int sample, int option)
{
    const std::vector<FontOption>& options = FontSamples().at(static_cast<std::size_t>(sample)).Options;
    if (option < static_cast<int>(options.size()))
        return options.at(static_cast<std::size_t>(option)).Font;
    return sample == PlayingPieceSample ? nullptr : &SetHeader::FontAutonumber;
}

} // namespace deckforge
