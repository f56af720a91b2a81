// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"
#include "output/ImageNames.h"
#include "output/RunReport.h"

#include <functional>

namespace deckforge {

/// The final pictures: the composed card in its outline, with its back unless the set has NoBack. A playing
/// piece is always painted twice, a user-designed back once.
enum class FinalImage { Card, LargeCard, Character, NewBack, PlayingPiece };

[[nodiscard]] constexpr FinalImage FinalImageOf(CardKind kind)
{
    return static_cast<FinalImage>(kind); // in the same order
}

[[nodiscard]] Picture FinalPictureOf(Workshop& workshop, FinalImage image);

/// Builds the final picture and writes it in the set's format. A failure is reported.
void WriteFinalPicture(Workshop& workshop, RunReport& report, FinalImage image, const FilePath& path);

/// Runs a step that builds and writes a picture. A failure is reported with the path and shown with the
/// title.
void WriteOrReport(const SetHeader& header, RunReport& report, const FilePath& path, const char* failureTitle,
                   const std::function<void()>& step);

/// Writes the picture in the set's format. Failures of the GIF writer are reported and shown with their own
/// title, other failures are thrown. An unknown format is only reported.
void WriteInFormat(const SetHeader& header, RunReport& report, const Picture& picture, const FilePath& path,
                   const char* gifFailureTitle);

} // namespace deckforge
