// Rules: Active-color editor
#include "common/ColorNumber.h"

#include <gtest/gtest.h>

namespace {

TEST(ColorNumber, RedIsInTheLowByte) {
    EXPECT_EQ(MakeColorNumber(64, 128, 255), 0xFF8040U);
}

TEST(ColorNumber, BytesFromTheLowestAreRedGreenBlue) {
    EXPECT_EQ(SplitColorNumber(0xFF8040), (RedGreenBlue{64, 128, 255}));
}

TEST(ColorNumber, EveryColorSplitsIntoWhatItWasMadeOf) {
    for (int part = 0; part <= 255; ++part) {
        EXPECT_EQ(SplitColorNumber(MakeColorNumber(part, 255 - part, part / 2)),
                  (RedGreenBlue{part, 255 - part, part / 2}));
    }
}

TEST(ColorNumber, HighByteIsIgnored) {
    EXPECT_EQ(SplitColorNumber(0xAB000001), (RedGreenBlue{1, 0, 0}));
}

TEST(ColorNumber, NumbersOutsideAByteGiveSomeColor) {
    EXPECT_EQ(MakeColorNumber(32767, 32767, 32767) & 0xFFU, 0xFFU);
    EXPECT_EQ(MakeColorNumber(-1, 0, 0), 0xFFFFFFFFU);
}

} // namespace
