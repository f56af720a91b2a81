// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/Drawing.h"
#include "fuzz/FuzzedFile.h"
#include "imaging/PictureDecoders.h"
#include "imaging/PictureLoader.h"
#include "platform/RunTimeError.h"

#include <QLoggingCategory>

// Decodes untrusted pictures of all formats: they are rejected or have a size. Formats that the program
// decodes in a process of their own are decoded here, where the fuzzer sees the decoder.

namespace {

bool IsDecodedApart(deckforge::PictureFormat format)
{
    using enum deckforge::PictureFormat;
    return format == Tiff || format == Svg || format == Heif;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    deckforge::StartDrawing();
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false"));
    const QByteArray all(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    try {
        if (const auto format = deckforge::FormatOf(all); IsDecodedApart(format)) {
            (void)deckforge::DecodeHere(all, format, 2);
            return 0;
        }
        if (deckforge::DecodePicture(deckforge::FuzzedFile(bytes, size).Path()).Size().isEmpty())
            std::abort();
    } catch (const deckforge::RunTimeError& error) {
        if (error.Number() != deckforge::ErrorNumber::InvalidPicture)
            std::abort();
    }
    return 0;
}
