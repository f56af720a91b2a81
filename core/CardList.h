// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/OneBasedArray.h"

namespace deckforge {

/// The records of one kind of card.
template <class Record>
class CardList : public OneBasedArray<Record> {
public:
    int16 Current = 0; ///< index of the record being edited; 0 if there is none
    Record Clip;       ///< the copied record, kept when another set is opened

    /// Error 9 if there is none.
    [[nodiscard]] Record& CurrentRecord()
    {
        if (Current < 1)
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        return (*this)[Current];
    }
};

} // namespace deckforge
