#include "fuzz/FuzzedFile.h"
#include "imaging/PictureLoader.h"
#include "platform/RunTimeError.h"

#include <QGuiApplication>
#include <QLoggingCategory>

// A picture from a stranger in any of the four formats: it is refused, or has a size.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz-picture";
    static char* argv[] = {name, nullptr};
    static const QGuiApplication application(argc, argv);
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
