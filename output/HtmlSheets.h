#pragma once

#include "output/RunReport.h"

namespace deckforge {

// Linked HTML pages that show the saved images of a kind, in the folder of the images. No image is made here.
//
// Every card must have a file name, else the user is told and nothing is written. The number of pages that
// the pages announce is one too high where the last one is full; past 32,767 it is error 6. A page that
// cannot be written is counted all the same, and reported. Each gives whether the cards have their names.
bool CreateHtmlCards(const CardSet& set, UserPort& user, RunReport& report);
bool CreateHtmlLargeCards(const CardSet& set, UserPort& user, RunReport& report);
bool CreateHtmlCharacters(const CardSet& set, UserPort& user, RunReport& report);
bool CreateHtmlPieces(const CardSet& set, UserPort& user, RunReport& report);

} // namespace deckforge
