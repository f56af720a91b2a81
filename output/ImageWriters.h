// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "compose/Workshop.h"
#include "output/ImageNames.h"
#include "output/RunReport.h"

#include <functional>

namespace deckforge {

/// The final pictures: the composed card in its outline, with its back unless the set has none. The playing
/// piece is there twice, also in a set without backs.
enum class FinalImage { Card, LargeCard, Character, PlayingPiece, NewBack };

[[nodiscard]] Picture FinalPictureOf(Workshop& workshop, FinalImage image);

/// Builds the final picture and writes it in the set's format. A failure is reported; the caller goes on.
void WriteFinalPicture(Workshop& workshop, RunReport& report, FinalImage image, const FilePath& path);

/// Carries out the step that builds a picture and writes it in the set's format. A failure is reported with
/// the path, and shown under the title; those of the GIF writer have their own title. An unknown format is
/// reported and writes nothing.
void WriteOrReport(Workshop& workshop, RunReport& report, const FilePath& path, const char* failureTitle,
                   const std::function<void()>& step);
void WriteInFormat(Workshop& workshop, RunReport& report, const Picture& picture, const FilePath& path,
                   const char* gifFailureTitle);

} // namespace deckforge
