// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "output/RunReport.h"

class QPaintDevice;

namespace deckforge {

/// What is printed: the current card of a kind with its back; a character with or without its playing piece.
/// The order is that of the tabs, and the first three are those of CardKind.
/// Kept: the tab of user-designed backs prints the current character.
enum class PrintedPage { Card, LargeCard, Character, CharacterAlone };

/// The kind of card on the page.
[[nodiscard]] CardKind KindOnPage(PrintedPage page);

/// Makes the card the current one and composes it.
[[nodiscard]] CompositionFailure ShowForPage(Workshop& workshop, PrintedPage page, int16 index);

/// Reports the missing pictures of the card that was shown for the page.
void ReportPage(Workshop& workshop, RunReport& report, PrintedPage page);

/// The heading of the page: set and card.
[[nodiscard]] QString PageTitle(const CardSet& set, PrintedPage page);

/// Composes the current card again for the page, at a finer scale, and paints the page. If that composition
/// fails the card is printed as it was composed last. Reports missing pictures, and a playing piece that does
/// not fit on the page. The path is used in reports, empty for a printer. Error 482 if the device cannot be
/// painted on.
void PrintPage(Workshop& workshop, RunReport& report, PrintedPage page, QPaintDevice& device,
               const QString& path = {});

/// Writes the page as a PDF file on A4 paper without margins.
void WritePdf(Workshop& workshop, RunReport& report, PrintedPage page, const QString& path,
              int pixelsPerInch);

/// Paints the composed card below its heading. Pictures and text have their physical size, at 96 pixels of a
/// card per inch. Returns whether everything fits on the page. Error 482 if the device cannot be painted on.
/// Kept: margin and gaps are in device pixels, so they are smaller on finer devices.
bool PaintPage(Workshop& workshop, PrintedPage page, QPaintDevice& device);

} // namespace deckforge
