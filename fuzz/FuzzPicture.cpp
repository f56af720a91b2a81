// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/Drawing.h"
#include "fuzz/FuzzedFile.h"
#include "imaging/PictureLoader.h"
#include "platform/RunTimeError.h"

#include <QLoggingCategory>

// Decodes untrusted pictures of all four formats: they are rejected or have a size.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    deckforge::StartDrawing();
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
    try {
        if (deckforge::DecodePicture(deckforge::FuzzedFile(bytes, size).Path()).Size().isEmpty())
            std::abort();
    } catch (const deckforge::RunTimeError& error) {
        if (error.Number() != deckforge::ErrorNumber::InvalidPicture)
            std::abort();
    }
    return 0;
}
