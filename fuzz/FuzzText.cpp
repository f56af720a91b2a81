// SPDX-License-Identifier: GPL-3.0-or-later

#include "compose/IgnoreFailure.h"
#include "compose/TextFitting.h"
#include "fuzz/Drawing.h"

#include <cstdint>
#include <cstring>

// A text in a column of any width: every character is printed once, and no line is empty.

using namespace deckforge;

namespace {

struct Column {
    std::int16_t Left;
    std::int16_t Top;
    std::int16_t Width;
    std::uint8_t Points;
    std::uint8_t Form;
};

void CheckBreaks(const PictureBox& surface, QStringView text, int width)
{
    while (!text.isEmpty()) {
        const qsizetype length = BreakPosition(surface, text, width);
        if (length < 1 || length > text.size())
            std::abort();
        text = text.sliced(length);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    StartDrawing();
    Column column = {};
    if (size < sizeof column)
        return 0;
    std::memcpy(&column, bytes, sizeof column);
    const QString text(reinterpret_cast<const QChar*>(bytes + sizeof column),
                       static_cast<qsizetype>((size - sizeof column) / sizeof(QChar)));
    PictureBox surface({152, 256});
    IgnoreFailure([&] { surface.SetFontSize(column.Points); });
    CheckBreaks(surface, text, column.Width);
    IgnoreFailure([&] {
        WrapAndPrint(surface, text,
                     {.Left = column.Left,
                      .Top = column.Top,
                      .Width = column.Width,
                      .Form = column.Form % 2 == 0 ? LineForm::Plain : LineForm::Centred});
    });
    return 0;
}
