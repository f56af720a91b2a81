#pragma once

#include "compose/Workshop.h"
#include "output/ImageNames.h"
#include "output/RunReport.h"

#include <functional>

namespace deckforge {

// The final pictures: the composed card of a kind in its outline, with its back unless the set goes without.
[[nodiscard]] Picture FinalCard(Workshop& workshop);
[[nodiscard]] Picture FinalLargeCard(Workshop& workshop);
[[nodiscard]] Picture FinalCharacter(Workshop& workshop);
[[nodiscard]] Picture FinalPlayingPiece(Workshop& workshop); ///< twice, also in a set without backs

// Each builds the final picture of its kind and writes it in the set's format. A failure is told in a box and
// reported; the caller goes on.

void WriteCard(Workshop& workshop, RunReport& report, const FilePath& path);
void WriteLargeCard(Workshop& workshop, RunReport& report, const FilePath& path);
void WriteCharacter(Workshop& workshop, RunReport& report, const FilePath& path);
void WritePlayingPiece(Workshop& workshop, RunReport& report, const FilePath& path);
void WriteNewCardBack(Workshop& workshop, RunReport& report, const FilePath& path);

/// Carries out the step that builds a picture and writes it in the set's format. A failure is told in a box
/// under the title, but those of the GIF writer under their own; all are reported with the path, and so is a
/// format that there is not, which writes nothing.
void WriteOrTell(Workshop& workshop, RunReport& report, const FilePath& path, const char* failureTitle,
                 const std::function<void()>& step);
void WriteInFormat(Workshop& workshop, RunReport& report, const Picture& picture, const FilePath& path,
                   const char* gifFailureTitle);

} // namespace deckforge
