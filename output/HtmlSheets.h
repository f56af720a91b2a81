// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "output/RunReport.h"

namespace deckforge {

/// The contents of the pages. The first three are in the order of CardKind.
enum class HtmlPages { Cards, LargeCards, Characters, Pieces };

/// Writes linked HTML pages that show the saved images of a kind, to the folder of the images.
///
/// Returns the number of pages, including those that could not be written, which are reported. Writes and
/// returns nothing if a card has no file name yet. Error 6 past 32,767 pages.
/// Kept: the links include one page too many if the last page is full.
[[nodiscard]] std::optional<int> WriteHtml(const CardSet& set, RunReport& report, HtmlPages pages);

} // namespace deckforge
