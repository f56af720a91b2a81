// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "imaging/cDIBSection.h"

namespace deckforge {

/// Writes a JPEG file with quality 0 to 100, 4:2:0 chroma subsampling and the given density.
///
/// An existing file is deleted first; the new one gets its access and modification times and permissions.
/// Fails with the errors of files, and error 26001 of the encoder.
bool SaveJPG(const cDIBSection& surface, const QString& fileName, int32 quality, int dotsPerInch);

} // namespace deckforge
