// Rules: Color mathematics
#include "common/ColorSpaces.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

void ExpectLab(const RedGreenBlue& color, const LabColor& wanted) {
    const LabColor lab = LabOfSrgb(color);
    // Published values differ in the white that they divide by: in the third digit.
    EXPECT_NEAR(lab.lightness, wanted.lightness, 0.02);
    EXPECT_NEAR(lab.a, wanted.a, 0.05);
    EXPECT_NEAR(lab.b, wanted.b, 0.05);
}

TEST(ColorSpaces, TransferFunctionIsThatOfTheStandard) {
    EXPECT_DOUBLE_EQ(LinearOfSrgb(0), 0);
    EXPECT_DOUBLE_EQ(LinearOfSrgb(255), 1);
    EXPECT_NEAR(LinearOfSrgb(10), 10 / 255.0 / 12.92, 1e-12); // the last of the straight part
    EXPECT_NEAR(LinearOfSrgb(11), std::pow((11 / 255.0 + 0.055) / 1.055, 2.4), 1e-12);
    EXPECT_NEAR(LinearOfSrgb(188), 0.5029, 1e-4);
}

TEST(ColorSpaces, ValueBeyondTheScaleCountsAsItsEnd) {
    EXPECT_DOUBLE_EQ(LinearOfSrgb(-1), 0);
    EXPECT_DOUBLE_EQ(LinearOfSrgb(256), 1);
}

TEST(ColorSpaces, WhiteIsD65) {
    const XyzColor white = XyzOfLinear({1, 1, 1});
    EXPECT_NEAR(white.x, 0.9505, 1e-12);
    EXPECT_NEAR(white.y, 1.0000, 1e-12);
    EXPECT_NEAR(white.z, 1.0890, 1e-12);
}

TEST(ColorSpaces, PrimariesHaveTheirPublishedLab) {
    ExpectLab({255, 0, 0}, {53.24, 80.09, 67.20});
    ExpectLab({0, 255, 0}, {87.73, -86.18, 83.18});
    ExpectLab({0, 0, 255}, {32.30, 79.19, -107.86});
    ExpectLab({255, 255, 0}, {97.14, -21.55, 94.48});
    ExpectLab({255, 255, 255}, {100, 0, 0});
    ExpectLab({0, 0, 0}, {0, 0, 0});
}

TEST(ColorSpaces, GraysHaveNoHue) {
    for (int value = 0; value <= 255; ++value) {
        const LabColor lab = LabOfSrgb({value, value, value});
        EXPECT_NEAR(lab.a, 0, 1e-9) << value;
        EXPECT_NEAR(lab.b, 0, 1e-9) << value;
    }
}

TEST(ColorSpaces, LabAndBackIsTheSameColor) {
    for (int red = 0; red <= 255; red += 15)
        for (int green = 0; green <= 255; green += 5)
            for (int blue = 0; blue <= 255; blue += 3) {
                const RedGreenBlue color{red, green, blue};
                ASSERT_EQ(SrgbOfLab(LabOfSrgb(color)), color) << red << ' ' << green << ' ' << blue;
            }
}

TEST(ColorSpaces, LabOutsideOfTheGamutIsCut) {
    EXPECT_EQ(SrgbOfLab({150, 0, 0}), (RedGreenBlue{255, 255, 255}));
    EXPECT_EQ(SrgbOfLab({-5, 0, 0}), (RedGreenBlue{0, 0, 0}));
    EXPECT_EQ(SrgbOfLab({53, 127, 127}).red, 255);
    EXPECT_EQ(SrgbOfLab({53, 127, 127}).green, 0);
}

TEST(ColorSpaces, LuminanceAndLightnessAreEachOthersInverse) {
    for (double lightness = 0; lightness <= 100; lightness += 0.5)
        EXPECT_NEAR(LightnessOfLuminance(LuminanceOfLightness(lightness)), lightness, 1e-9);
    EXPECT_NEAR(LuminanceOfLightness(50), 0.18419, 1e-5);
}

TEST(ColorSpaces, PartsOfTheLuminanceAddUpToIt) {
    const RedGreenBlue color{200, 100, 50};
    EXPECT_NEAR(LuminanceOfRed(200) + LuminanceOfGreen(100) + LuminanceOfBlue(50),
                XyzOfLinear(LinearOfSrgb(color)).y, 1e-12);
}

} // namespace
