// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RunTimeError.h"

namespace deckforge {

/// Runs one step of a composition. One that fails is passed over without a word, and the next one runs.
template <class Step>
void IgnoreFailure(Step&& step)
{
    try {
        WithMemoryAsFailure(step);
    } catch (const RunTimeError&) {
    }
}

} // namespace deckforge
