// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Numbers.h"
#include "support/Failures.h"

#include <cmath>

namespace deckforge {

TEST(Numbers, RoundHalvesToEvenAndOverflow)
{
    EXPECT_EQ(ToInt16(104.5), 104);
    EXPECT_EQ(ToInt16(105.5), 106);
    EXPECT_EQ(ToInt16(-0.5), 0);
    EXPECT_EQ(ToInt16(32767.4), 32767);
    for (const double outside : {32767.5, -32769.0, 1e300, std::nan("")})
        EXPECT_EQ(FailureOf([&] { (void)ToInt16(outside); }), 6) << outside;
    EXPECT_EQ(ToInt32(2147483647.0), 2147483647);
    EXPECT_EQ(FailureOf([] { (void)ToInt32(2147483648.0); }), 6);
    EXPECT_EQ(FailureOf([] { (void)CheckedAdd(32767, 1); }), 6);
}

TEST(Numbers, AreReadWithSpacesInAnyLocaleAndAsBooleans)
{
    for (const auto& [text, number] :
         {std::pair{" 105 ", 105.}, {"-1 ", -1}, {"+12.5", 12.5}, {".5", 0.5}, {"1E+20", 1e20}})
        EXPECT_EQ(NumberFromText(text), number);
    for (const char* none : {"", " ", "x", "12x", "1 2", "1,5", "inf", "nan", "+-1", "--1", "0x10"})
        EXPECT_EQ(FailureOf([&] { (void)NumberFromText(none); }), 13) << none;
    EXPECT_EQ(FailureOf([] { (void)NumberFromText("1e999"); }), 6);

    for (const char* text : {"True", "TRUE", " true ", "-1", " 1 ", "0.1"})
        EXPECT_TRUE(BooleanFromText(text)) << text;
    for (const char* text : {"False", "false", "0", " 0 "})
        EXPECT_FALSE(BooleanFromText(text)) << text;
    EXPECT_EQ(FailureOf([] { (void)BooleanFromText("yes"); }), 13);
    EXPECT_EQ(FailureOf([] { (void)BooleanFromText(""); }), 13);
}

TEST(Numbers, AreWrittenWithASignOrSpaceAndATrailingSpace)
{
    const auto written = [](auto value) {
        QByteArray line;
        AppendNumber(line, value);
        return line;
    };
    EXPECT_EQ(written(int32{105}), " 105 ");
    EXPECT_EQ(written(int32{-1}), "-1 ");
    EXPECT_EQ(written(int32{-2147483647 - 1}), "-2147483648 ");
    EXPECT_EQ(written(7.0), " 7 ");
    EXPECT_EQ(written(-12.5), "-12.5 ");
    EXPECT_EQ(written(-0.0), " 0 ");
    EXPECT_EQ(written(0.1), " 0.1 ");
    EXPECT_EQ(written(1.0 / 3), " 0.333333333333333 ");
    EXPECT_EQ(written(1e300), " 1E+300 ");
}

} // namespace deckforge
