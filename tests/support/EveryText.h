// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "files/SetFields.h"

namespace deckforge {

/// Visits the fields of a set in file order and replaces each text by the result of the function.
template <class Make>
struct EveryText {
    Make MakeText;

    template <class... Older>
    void Text(QString& field, const Older&... /*unused*/)
    {
        field = MakeText();
    }
    void Flattened(QString& field) { field = MakeText(); }
    void Path(QString& field) { field = MakeText(); }
    void Boolean(bool /*unused*/, setFile::Since /*unused*/ = {}) {}
    template <class... Other>
    void Integer(const Other&... /*unused*/)
    {
    }
    void Real(double /*unused*/) {}
    static bool Has(setFile::Since /*unused*/) { return true; }
};

/// The texts of the set, of its last own back and of the first element of each kind.
template <class Make>
void SetEveryText(CardSet& set, Make&& make)
{
    EveryText<Make&> texts = {make};
    setFile::Fields(texts, set.Header);
    setFile::Fields(texts, set.CardBacks[set.CardBacks.Count()]);
    setFile::Fields(texts, set.Cards[1]);
    setFile::Fields(texts, set.LargeCards[1]);
    setFile::Fields(texts, set.Characters[1]);
    setFile::Fields(texts, set.NewCardBacks[1]);
}

} // namespace deckforge
