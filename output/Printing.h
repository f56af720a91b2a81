// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "output/RunReport.h"

class QPaintDevice;

namespace deckforge {

/// What is printed of a set: its current card of a kind with the back, and with a character the playing
/// piece, or not; in the order of the tabs, and so of CardKind: the tab of backs prints the current
/// character.
enum class PrintedPage { Card, LargeCard, Character, CharacterAlone };

/// The kind of card that the page is of.
[[nodiscard]] CardKind KindOnPage(PrintedPage page);

/// Makes the card of the index the current one, and composes it.
[[nodiscard]] CompositionFailure ShowForPage(Workshop& workshop, PrintedPage page, int16 index);

/// Reports what the card that was shown for the page lacks.
void ReportPage(Workshop& workshop, RunReport& report, PrintedPage page);

/// What the page says above the card: the set and the card.
[[nodiscard]] QString PageTitle(const CardSet& set, PrintedPage page);

// The card is composed anew for the page, finer than the window does, from the set as it stands. One that
// cannot be composed so is printed as it was composed last; whoever showed it has told why. Pictures that it
// lacks are reported, and a playing piece that does not lie on the page.

/// Paints the page of the current card. The path is that of the page in a report, empty for a printer. Error
/// 482 when the device takes no page.
void PrintPage(Workshop& workshop, RunReport& report, PrintedPage page, QPaintDevice& device,
               const QString& path = {});

/// The same page as a PDF file on A4 paper, which is printable to its edges. A failure of the file is thrown.
void WritePdf(Workshop& workshop, RunReport& report, PrintedPage page, const QString& path,
              int pixelsPerInch);

/// Lays the page down: the composed card under its heading, in pixels of the device from its origin. Margin
/// and gaps shrink as the device gets finer; pictures and letters have their physical size, 96 pixels of a
/// card to the inch. Gives whether all of it lies on the page. Error 482 when the device takes no page.
bool PaintPage(Workshop& workshop, PrintedPage page, QPaintDevice& device);

} // namespace deckforge
