// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Types.h"

#include <QString>

namespace deckforge {

/// A font as chosen by the user; Size is in points. The name is kept even if the font is not installed.
struct FontSpec {
    QString Name;
    double Size = 0;
    bool Bold = false;
    bool Italic = false;
    Colour Color = Black;

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

} // namespace deckforge
