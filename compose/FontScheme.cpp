// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/FontScheme.h"

#include "compose/IgnoreFailure.h"

namespace deckforge {

void UseFont(PictureBox& surface, const FontSpec& font)
{
    IgnoreFailure([&] { surface.SetFontName(font.Name); });
    surface.SetFontBold(font.Bold);
    surface.SetFontItalic(font.Italic);
    IgnoreFailure([&] { surface.SetFontSize(font.Size); });
    surface.ForeColor = font.Color;
}

void SetFont(CardTemplates& templates, const SetHeader& header)
{
    for (Box* box : templates.Boxes()) {
        if (box->FontOfSet)
            box->Font = header.*box->FontOfSet;
    }
}

void ApplyOpenedSetFonts(CardTemplate& card, const SetHeader& header)
{
    for (Box* box : card.Boxes) {
        if (box->FontOfSet && box != &card.lblType[2] && box != &card.lblType[3])
            box->Font = header.*box->FontOfSet;
    }
}

} // namespace deckforge
