#pragma once

#include "imaging/cDIBSection.h"

namespace deckforge {

/// Writes a surface as a JPEG file; quality from 0 to 100, chroma at half the size in both directions,
/// and so many dots to the inch.
///
/// A file that is replaced hands its access and change times and its permissions on to the new one. It is
/// deleted before the new one is written. Failures: those of files, and error 26001 of the encoder.
bool SaveJPG(const cDIBSection& surface, const QString& fileName, int32 quality, int dotsPerInch);

} // namespace deckforge
