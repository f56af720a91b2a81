#pragma once

#include "compose/Workshop.h"
#include "output/ImageNames.h"

namespace deckforge {

// The final pictures: the composed card of a kind in its outline, with its back unless the set goes without.
[[nodiscard]] Picture FinalCard(Workshop& workshop);
[[nodiscard]] Picture FinalLargeCard(Workshop& workshop);
[[nodiscard]] Picture FinalCharacter(Workshop& workshop);
[[nodiscard]] Picture FinalPlayingPiece(Workshop& workshop); ///< twice, also in a set without backs

// Each builds the final picture of its kind and writes it in the set's format. A failure is told in a box;
// the caller goes on.

void WriteCard(Workshop& workshop, const FilePath& path);
void WriteLargeCard(Workshop& workshop, const FilePath& path);
void WriteCharacter(Workshop& workshop, const FilePath& path);
void WritePlayingPiece(Workshop& workshop, const FilePath& path);
void WriteNewCardBack(Workshop& workshop, const FilePath& path);

/// Writes a picture in the set's format; a format that there is not writes nothing. Failures are thrown but
/// those of the GIF writer, which are told under the title.
void WriteInFormat(Workshop& workshop, const Picture& picture, const FilePath& path,
                   const char* gifFailureTitle);

/// Tells that an image could not be written.
void TellWriteFailure(UserPort& user, const char* title, const QString& reason = {});

/// Runs what builds and writes an image. A failure is told under the title.
template <class Step>
void WriteOrTell(UserPort& user, const char* failureTitle, Step&& step)
{
    try {
        WithMemoryAsFailure(step);
    } catch (const RunTimeError&) {
        TellWriteFailure(user, failureTitle);
    }
}

} // namespace deckforge
