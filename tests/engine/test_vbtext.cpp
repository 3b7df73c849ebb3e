// Numbers in text: the leading number of any text, rounded half to even and held within 32 bits.
#include <gtest/gtest.h>

#include "core/VbText.h"

using namespace jv;

TEST(VbText, ValReadsTheLeadingNumberAndValIntRoundsHalfToEven) {
    // Val reads a text's leading number and ValInt rounds it half to even within 32 bits.
    const struct { const char* text; double val; int valInt; } rows[] = {
        {"12ab", 12, 12},  {"  7", 7, 7},     {"\t-4x", -4, -4}, {"2.5", 2.5, 2},     {"3.5", 3.5, 4},
        {"-2.5", -2.5, -2}, {"1e3", 1, 1},    {"&HFF", 0, 0},    {"1,000", 1, 1},     {".5", 0.5, 0},
        {"- 5", 0, 0},      {"", 0, 0},       {"x1", 0, 0},      {"99999999999", 99999999999.0, 2147483647},
        {"-99999999999", -99999999999.0, -2147483647 - 1},
    };
    for (const auto& r : rows) {
        EXPECT_DOUBLE_EQ(Val(r.text), r.val) << '"' << r.text << '"';
        EXPECT_EQ(ValInt(r.text), r.valInt) << '"' << r.text << '"';
    }
}
