// Rules: Color mathematics
#include "common/PlainColorModels.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

void ForManyColors(const std::function<void(const RedGreenBlue&)>& action) {
    for (int red = 0; red <= 255; red += 5)
        for (int green = 0; green <= 255; green += 15)
            for (int blue = 0; blue <= 255; blue += 17)
                action({red, green, blue});
}

TEST(PlainColorModels, FullInkTakesItsLightAway) {
    EXPECT_EQ(SrgbOfCmyk({0, 0, 0, 0}), (RedGreenBlue{255, 255, 255}));
    EXPECT_EQ(SrgbOfCmyk({1, 0, 0, 0}), (RedGreenBlue{0, 255, 255}));
    EXPECT_EQ(SrgbOfCmyk({0, 1, 0, 0}), (RedGreenBlue{255, 0, 255}));
    EXPECT_EQ(SrgbOfCmyk({0, 0, 1, 0}), (RedGreenBlue{255, 255, 0}));
    EXPECT_EQ(SrgbOfCmyk({0, 0, 0, 1}), (RedGreenBlue{0, 0, 0}));
    EXPECT_EQ(SrgbOfCmyk({0.2, 0.4, 0.6, 0.5}), (RedGreenBlue{102, 77, 51}));
}

TEST(PlainColorModels, InksBeyondTheirRangeCountAsItsEnd) {
    EXPECT_EQ(SrgbOfCmyk({-1, 2, 0, -3}), (RedGreenBlue{255, 0, 255}));
}

TEST(PlainColorModels, CmykAndBackIsTheSameColor) {
    ForManyColors(
        [](const RedGreenBlue& color) { ASSERT_EQ(SrgbOfCmyk(CmykOfSrgb(color)), color); });
    EXPECT_DOUBLE_EQ(CmykOfSrgb({0, 0, 0}).black, 1);
}

TEST(PlainColorModels, HuesAreSixtyDegreesApart) {
    EXPECT_EQ(SrgbOfHsb({0, 1, 1}), (RedGreenBlue{255, 0, 0}));
    EXPECT_EQ(SrgbOfHsb({60, 1, 1}), (RedGreenBlue{255, 255, 0}));
    EXPECT_EQ(SrgbOfHsb({120, 1, 1}), (RedGreenBlue{0, 255, 0}));
    EXPECT_EQ(SrgbOfHsb({180, 1, 1}), (RedGreenBlue{0, 255, 255}));
    EXPECT_EQ(SrgbOfHsb({240, 1, 1}), (RedGreenBlue{0, 0, 255}));
    EXPECT_EQ(SrgbOfHsb({300, 1, 1}), (RedGreenBlue{255, 0, 255}));
    EXPECT_EQ(SrgbOfHsb({30, 1, 1}), (RedGreenBlue{255, 128, 0}));
    EXPECT_EQ(SrgbOfHsb({210, 0.5, 0.8}), (RedGreenBlue{102, 153, 204}));
}

TEST(PlainColorModels, HuesOfColorsAreFromRedRoundToRed) {
    EXPECT_DOUBLE_EQ(HsbOfSrgb({255, 0, 0}).hue, 0);
    EXPECT_DOUBLE_EQ(HsbOfSrgb({200, 200, 0}).hue, 60);
    EXPECT_DOUBLE_EQ(HsbOfSrgb({10, 20, 10}).hue, 120);
    EXPECT_DOUBLE_EQ(HsbOfSrgb({0, 0, 255}).hue, 240);
    EXPECT_DOUBLE_EQ(HsbOfSrgb({255, 0, 255}).hue, 300);
    EXPECT_NEAR(HsbOfSrgb({255, 0, 51}).hue, 348, 1e-9);
    EXPECT_DOUBLE_EQ(HsbOfSrgb({100, 50, 50}).saturation, 0.5);
    EXPECT_DOUBLE_EQ(HsbOfSrgb({51, 0, 0}).brightness, 0.2);
}

TEST(PlainColorModels, HueGoesRound) {
    EXPECT_EQ(SrgbOfHsb({360, 1, 1}), SrgbOfHsb({0, 1, 1}));
    EXPECT_EQ(SrgbOfHsb({-60, 1, 1}), SrgbOfHsb({300, 1, 1}));
    EXPECT_EQ(SrgbOfHsb({840, 1, 1}), SrgbOfHsb({120, 1, 1}));
}

TEST(PlainColorModels, HsbAndBackIsTheSameColor) {
    ForManyColors([](const RedGreenBlue& color) { ASSERT_EQ(SrgbOfHsb(HsbOfSrgb(color)), color); });
}

TEST(PlainColorModels, GrayHasNoHueAndNoSaturation) {
    EXPECT_DOUBLE_EQ(HsbOfSrgb({90, 90, 90}).hue, 0);
    EXPECT_DOUBLE_EQ(HsbOfSrgb({90, 90, 90}).saturation, 0);
    EXPECT_DOUBLE_EQ(HsbOfSrgb({0, 0, 0}).saturation, 0);
}

TEST(PlainColorModels, GrayIsThreeTimesTheSameValue) {
    EXPECT_EQ(SrgbOfGray(0), (RedGreenBlue{0, 0, 0}));
    EXPECT_EQ(SrgbOfGray(1), (RedGreenBlue{255, 255, 255}));
    EXPECT_EQ(SrgbOfGray(0.4), (RedGreenBlue{102, 102, 102}));
    EXPECT_EQ(SrgbOfGray(7), (RedGreenBlue{255, 255, 255}));
}

} // namespace
