// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RunTimeError.h"

namespace deckforge {

/// Runs a step of a composition and ignores its failure.
template <class Step>
void IgnoreFailure(Step&& step)
{
    try {
        WithMemoryAsFailure(step);
    } catch (const RunTimeError&) {
    }
}

} // namespace deckforge
