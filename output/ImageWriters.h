#pragma once

#include "compose/Workshop.h"
#include "output/ImageNames.h"

namespace deckforge {

// Each builds the final picture of the composed card of its kind, with its outline and its back, and writes
// it in the set's format. A failure is told in a box; the caller goes on.

void WriteCard(Workshop& workshop, const FilePath& path);
void WriteLargeCard(Workshop& workshop, const FilePath& path);
void WriteCharacter(Workshop& workshop, const FilePath& path);
void WritePlayingPiece(Workshop& workshop, const FilePath& path); ///< twice, also in a set without backs
void WriteNewCardBack(Workshop& workshop, const FilePath& path);

/// The titles of the boxes that tell of a failure: any, and one of the GIF writer.
struct WriteFailureTitles {
    const char* Any;
    const char* Gif;
};

/// Writes the picture that the function builds in the set's format; both may fail, which is told.
template <class Build>
void WriteOrTell(Workshop& workshop, const WriteFailureTitles& titles, const FilePath& path, Build&& build);

/// Writes a picture in the set's format; a format that there is not writes nothing. Failures are thrown but
/// those of the GIF writer, which are told.
void WriteInFormat(Workshop& workshop, const Picture& picture, const FilePath& path,
                   const char* gifFailureTitle);

/// Tells that an image could not be written.
void TellWriteFailure(UserPort& user, const char* title, const QString& reason = {});

template <class Build>
void WriteOrTell(Workshop& workshop, const WriteFailureTitles& titles, const FilePath& path, Build&& build)
{
    try {
        WithMemoryAsFailure([&] { WriteInFormat(workshop, build(), path, titles.Gif); });
    } catch (const RunTimeError&) {
        TellWriteFailure(workshop.User, titles.Any);
    }
}

} // namespace deckforge
