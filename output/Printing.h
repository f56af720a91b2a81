#pragma once

#include "compose/Workshop.h"

class QPaintDevice;

namespace deckforge {

/// What is printed of a set: its current card of a kind with the back, and with a character the playing
/// piece, or not.
enum class PrintedPage { Card, LargeCard, Character, CharacterAlone };

/// Prints the composed card on a page of the usual printer, and tells so in a box. Without a printer, or when
/// it takes no page, error 482.
void PrintCard(Workshop& workshop, PrintedPage page);

/// Lays the composed card on one page under its heading, in pixels of the device from its origin: the margin
/// and the gaps shrink as the device gets finer. Pictures and letters have their physical size, 96 pixels of
/// a card to the inch. Error 482 when the device takes no page.
void LayPage(Workshop& workshop, PrintedPage page, QPaintDevice& device);

/// The same page as a PDF file on A4 paper, which is printable to its edges. A failure of the file is thrown.
void WritePdf(Workshop& workshop, PrintedPage page, const QString& path, int pixelsPerInch);

/// What the page says above the card: the set and the card.
[[nodiscard]] QString PageTitle(const CardSet& set, PrintedPage page);

} // namespace deckforge
