// Rules: Finding colors
#include "common/ShownNumbers.h"

#include <gtest/gtest.h>

namespace {

TEST(ShownNumbers, SignStandsBetweenGroupsOfThreeDigits) {
    EXPECT_EQ(WithThousands(0, "."), "0");
    EXPECT_EQ(WithThousands(999, "."), "999");
    EXPECT_EQ(WithThousands(1000, "."), "1.000");
    EXPECT_EQ(WithThousands(123456, ","), "123,456");
    EXPECT_EQ(WithThousands(2147483647, "'"), "2'147'483'647");
}

TEST(ShownNumbers, DecimalsAreRoundedAndStandBehindTheSign) {
    EXPECT_EQ(WithDecimals(0, 2, ","), "0,00");
    EXPECT_EQ(WithDecimals(3.14159, 2, ","), "3,14");
    EXPECT_EQ(WithDecimals(99.999, 2, "."), "100.00");
    EXPECT_EQ(WithDecimals(7.5, 0, ","), "8");
}

} // namespace
