// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "output/RunReport.h"

namespace deckforge {

/// What the pages show; the first three in the order of CardKind.
enum class HtmlPages { Cards, LargeCards, Characters, Pieces };

/// Writes linked HTML pages that show the saved images of a kind, to the folder of the images. No image is
/// made here.
///
/// Returns the number of pages due; nothing, and no page is written, if a card has no file name yet. The
/// number of pages that the pages announce is one too high where the last one is full; past 32,767 it is
/// error 6. A page that cannot be written is counted all the same, and reported.
[[nodiscard]] std::optional<int> WriteHtml(const CardSet& set, RunReport& report, HtmlPages pages);

} // namespace deckforge
