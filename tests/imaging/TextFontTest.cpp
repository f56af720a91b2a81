// SPDX-License-Identifier: GPL-3.0-or-later

#include "imaging/PictureBox.h"
#include "support/PixelText.h"

#include <gtest/gtest.h>

namespace deckforge {

namespace {

QImage Printed(const QString& text, const QString& font)
{
    PictureBox surface(QSize(80, 20));
    surface.SetFontName(font);
    surface.Print(text);
    return surface.Image().Pixels();
}

} // namespace

TEST(TextFont, CommonFontsHaveTwinsWithTheSameWidths)
{
    const std::pair<const char*, const char*> twins[] = {
        {"Times New Roman", "Liberation Serif"},    {"courier new", "Liberation Mono"},
        {"Arial Narrow", "Liberation Sans Narrow"}, {"Helvetica", "Liberation Sans"},
        {"Small Fonts", "Liberation Sans"},         {"No Such Font", "Liberation Sans"}};
    for (const auto& [name, twin] : twins)
        EXPECT_EQ(Printed("Wolf 10", name), Printed("Wolf 10", twin)) << name;
    EXPECT_NE(Printed("Wolf 10", "Times New Roman"), Printed("Wolf 10", "Arial"));
}

TEST(TextFont, LettersThatAFontLacksComeFromOthers)
{
    // Letters that no font has are all drawn as the same box.
    const QImage missing = Printed(QString(QChar(0xE123)), "Arial");
    for (const char* const letters : {"漢", "字", "か", "한", "ש", "ع", "Ж", "Ł", "Ω"})
        EXPECT_NE(Printed(letters, "Arial"), missing) << letters;
    EXPECT_NE(Printed("漢", "Arial"), Printed("字", "Arial"));
}

} // namespace deckforge
