#pragma once

#include "platform/Types.h"

#include <QString>

namespace deckforge {

/// One font as the user chooses it; Size in points. The name stays as chosen, also where this machine lacks
/// the font.
struct FontSpec {
    QString Name;
    double Size = 0;
    bool Bold = false;
    bool Italic = false;
    Colour Color = Black;

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

} // namespace deckforge
