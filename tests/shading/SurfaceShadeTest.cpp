// Rules: Color mathematics
#include "shading/SurfaceShade.h"

#include <gtest/gtest.h>

namespace {

constexpr int kSize = 40;
constexpr std::uint32_t kBackground = 0x102030;

std::uint32_t PixelOf(const SurfaceShares& values, int column, int row) {
    return ShadedBall(values, kSize, kBackground)
        .at(static_cast<std::size_t>(row) * kSize + static_cast<std::size_t>(column));
}

TEST(SurfaceShade, ThePlainColorIsTheValueTimesTwoHundredFiftyFive) {
    EXPECT_EQ(PlainColor({128 / 255.0, 0, 1}), (RedGreenBlue{128, 0, 255}));
    EXPECT_EQ(PlainColor({-1, 2, 0.5}), (RedGreenBlue{0, 255, 128}));
}

TEST(SurfaceShade, TheCornersShowTheBackground) {
    EXPECT_EQ(ShadedBall({}, kSize, kBackground).size(), std::size_t{kSize} * kSize);
    EXPECT_EQ(PixelOf({1, 1, 1}, 0, 0), kBackground);
}

TEST(SurfaceShade, WithoutLightTheBallIsBlackAndEmissionLightsIt) {
    EXPECT_EQ(PixelOf({1, 0, 0}, kSize / 2, kSize / 2), 0U);
    EXPECT_EQ(PixelOf({1, 0, 0, 0, 0, 0, 0, 0, 1}, kSize / 2, kSize / 2), 0xFF0000U);
}

TEST(SurfaceShade, DiffuseLightComesFromTheUpperLeft) {
    const SurfaceShares white{1, 1, 1, 0, 1};
    EXPECT_GT(PixelOf(white, 12, 10), PixelOf(white, 28, 30));
}

TEST(SurfaceShade, SpecularLightIsWhite) {
    EXPECT_NE(PixelOf({0, 0, 0, 0, 0, 1, 0.2}, 15, 14), 0U);
}

TEST(SurfaceShade, AFullyTransparentBallShowsTheGround) {
    EXPECT_EQ(PixelOf({0, 0, 0, 0, 0, 0, 0, 1}, kSize / 2, kSize / 2), 0xEDEDEDU);
}

// FNV-1a over every pixel of balls in three sizes, of all kinds of material.
TEST(SurfaceShade, EveryPixelIsAsItWas) {
    std::uint64_t sum = 14695981039346656037U;
    for (int kind = 0; kind < 40; ++kind) {
        SurfaceShares values{};
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = static_cast<double>((kind * 37 + static_cast<int>(i) * 53) % 101) / 97.0;
        for (const int size : {16, 33, 96})
            for (const std::uint32_t pixel : ShadedBall(values, size, kBackground))
                sum = (sum ^ pixel) * 1099511628211U;
    }
    EXPECT_EQ(sum, 9185652598348272395U);
}

TEST(PlainColor, AnExactHalfGoesToTheEvenNeighbour) {
    SurfaceShares values{0.5, 0.3, 0.1};
    EXPECT_EQ(PlainColor(values), (RedGreenBlue{128, 76, 26}));
}

} // namespace
