#include <gtest/gtest.h>

#include "core/VbText.h"

using namespace jv;

TEST(VbText, NumbersAreWrittenWithZerosAndALeadingBlank) {
    // Format pads to the pattern's width; Str puts a blank before a non-negative number.
    EXPECT_EQ(Format(5, "00"), "05");
    EXPECT_EQ(Format(123, "00"), "123");
    EXPECT_EQ(Format(42, "00000"), "00042");
    EXPECT_EQ(Format(-3, "00"), "-03");
    EXPECT_EQ(Str(5), " 5");
    EXPECT_EQ(Str(0), " 0");
    EXPECT_EQ(Str(-5), "-5");
}

TEST(VbText, ValReadsTheLeadingNumberAndRoundsHalfToEven) {
    // Val takes the leading number of a text, 0 when there is none.
    EXPECT_EQ(Val("12ab"), 12);
    EXPECT_EQ(Val("xx"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("  7"), 7);
    EXPECT_EQ(Val("-4x"), -4);
    EXPECT_DOUBLE_EQ(Val("2.5"), 2.5);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(3.5), 4);
    EXPECT_EQ(RoundHalfEven(-2.5), -2);
    EXPECT_EQ(ValInt("2.5"), 2);
    EXPECT_EQ(ValInt("3.5"), 4);
    EXPECT_EQ(ValInt("99999999999999999999"), 2147483647);
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Lower("VbYesNo"), "vbyesno");
}
