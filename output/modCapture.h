#pragma once

#include "output/RunReport.h"

namespace deckforge {

// Image files of composed cards, one by one and all of a kind.

enum class Ask { No, Yes };
enum class Tell { No, Yes };

/// The sheet that a card is placed on; none for an image of its own.
using SheetNumber = std::optional<int16>;

// Each names the composed card of the index, asks where wanted, and writes its image, or places it on a
// sheet. A card without a file name is asked for where the result is told; elsewhere it takes its title. A
// cancel, or a failure before the writing, ends it without a box and leaves the card its name. A character's
// playing piece goes with its card; on a sheet a character writes nothing. A user-designed back is shown and
// composed anew. Failures are reported, and so are pictures that the composed card lacks.
void SaveCard(Workshop& workshop, RunReport& report, int16 index, Ask ask, Tell tell, SheetNumber sheet = {});
void SaveLargeCard(Workshop& workshop, RunReport& report, int16 index, Ask ask, Tell tell,
                   SheetNumber sheet = {});
void SaveCharacter(Workshop& workshop, RunReport& report, int16 index, Ask ask, Tell tell,
                   SheetNumber sheet = {});
void SaveNewCardBack(Workshop& workshop, RunReport& report, int16 index, Ask ask, Tell tell,
                     SheetNumber sheet = {});

// All images of a kind without a question, and a box that tells how many they are.
void CreateCards(Workshop& workshop, RunReport& report);
void CreateLargeCards(Workshop& workshop, RunReport& report);
void CreateCharacters(Workshop& workshop, RunReport& report);

/// The built-in backs as BMP files, but the blank one, and those of characters. A failure is thrown.
void WriteCardBacks(Workshop& workshop, const QString& folder);

/// The same in a folder that the user chooses, and a box that tells so; nothing on a cancel.
void ExportCardBacks(Workshop& workshop);

} // namespace deckforge
