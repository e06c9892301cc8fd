// Rules: Color mathematics
#include "shading/SurfaceShade.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr int kSize = 32;
constexpr std::uint32_t kBorder = 0x808080;
constexpr FieldShape kField{.size = 16, .margin = 1, .border = 1, .color = kBorder};

// Ambient and diffuse light, nothing else.
constexpr ColorValueArray kWhite{255, 255, 255, 100, 100, 0, 0, 0, 0};
constexpr ColorValueArray kGlass{10, 20, 30, 100, 100, 0, 0, 100, 0};

ColorValueArray With(ColorValueArray values, ColorValue which, int value) {
    values.at(static_cast<std::size_t>(which)) = static_cast<std::int16_t>(value);
    return values;
}

std::uint32_t At(const std::vector<std::uint32_t>& pixels, int size, int column, int row) {
    return pixels.at(static_cast<std::size_t>(row * size + column));
}
std::uint32_t OfField(const ColorValueArray& values, int column, int row) {
    return At(FieldPicture(values, kField), kField.size, column, row);
}

// All bytes of all pixels together.
std::uint64_t Light(const ColorValueArray& values) {
    std::uint64_t sum = 0;
    for (const std::uint32_t pixel : BallPicture(values, BallShape(kSize, Lighting::TwoLamps)))
        sum += (pixel >> 16 & 0xFF) + (pixel >> 8 & 0xFF) + (pixel & 0xFF);
    return sum;
}

TEST(ColorPicture, SharesAreThoseOfTheHighestValues) {
    const SurfaceShares shares = SharesOf({255, 51, 0, 100, 50, 0, 25, 75, 1});
    EXPECT_EQ(shares, (SurfaceShares{1, 0.2, 0, 1, 0.5, 0, 0.25, 0.75, 0.01}));
}

TEST(ColorPicture, ValuesBeyondTheirRangesCountAsTheirEnds) {
    ColorValueArray above{};
    ColorValueArray below{};
    above.fill(std::numeric_limits<std::int16_t>::max());
    below.fill(std::numeric_limits<std::int16_t>::min());
    SurfaceShares ones{};
    ones.fill(1);
    EXPECT_EQ(SharesOf(above), ones);
    EXPECT_EQ(SharesOf(below), SurfaceShares{});
}

TEST(ColorPicture, EachEndOfEachValueGivesAPictureOfItsSize) {
    for (std::size_t i = 0; i < kColorValueCount; ++i)
        for (const int value : {0, MaximumOfColorValue(i)})
            for (const int size : {1, 2, 16, 24, 32, 64}) {
                const ColorValueArray values = With(kWhite, static_cast<ColorValue>(i), value);
                const auto pixels = static_cast<std::size_t>(size) * static_cast<std::size_t>(size);
                EXPECT_EQ(BallPicture(values, BallShape(size, Lighting::TwoLamps)).size(), pixels);
                EXPECT_EQ(FieldPicture(values, {size, 1, 1, 0}).size(), pixels);
            }
}

TEST(ColorPicture, WhiteIsWhite) {
    EXPECT_EQ(OfField(kWhite, 8, 8), 0xFFFFFFFFU);
    EXPECT_EQ(At(BallPicture(kWhite, BallShape(kSize, Lighting::TwoLamps)), kSize, 9, 8),
              0xFFFFFFFFU)
        << "towards the light";
}

TEST(ColorPicture, FieldIsThePlainColorWithinABorderAndAMargin) {
    const ColorValueArray color{10, 20, 30, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(OfField(color, 8, 8), 0xFF0A141EU);
    EXPECT_EQ(OfField(color, 2, 2), 0xFF0A141EU);
    EXPECT_EQ(OfField(color, 13, 13), 0xFF0A141EU);
    for (const int edge : {1, 14}) {
        EXPECT_EQ(OfField(color, edge, 8), 0xFF000000U | kBorder);
        EXPECT_EQ(OfField(color, 8, edge), 0xFF000000U | kBorder);
    }
    for (const int edge : {0, 15}) {
        EXPECT_EQ(OfField(color, edge, 8), 0U);
        EXPECT_EQ(OfField(color, 8, edge), 0U);
    }
}

TEST(ColorPicture, WhatIsTransparentShowsTheCheckerboard) {
    EXPECT_EQ(OfField(kGlass, 2, 2), 0xFFEDEDEDU);
    EXPECT_EQ(OfField(kGlass, 6, 2), 0xFFB8B8B8U);
    EXPECT_EQ(OfField(kGlass, 6, 6), 0xFFEDEDEDU);
    EXPECT_EQ(At(BallPicture(kGlass, BallShape(kSize, Lighting::TwoLamps)), kSize, 16, 16),
              0xFFEDEDEDU);
    EXPECT_EQ(At(BallPicture(kGlass, BallShape(kSize, Lighting::TwoLamps)), kSize, 20, 16),
              0xFFB8B8B8U);
}

TEST(ColorPicture, HalfTransparentIsHalfOfBoth) {
    const ColorValueArray half = With({255, 0, 0}, ColorValue::Transparency, 50);
    EXPECT_EQ(OfField(half, 2, 2), 0xFFF67777U);
}

TEST(ColorPicture, BallHasNothingInItsCorners) {
    const auto pixels = BallPicture(kWhite, BallShape(kSize, Lighting::TwoLamps));
    for (const int column : {0, kSize - 1})
        for (const int row : {0, kSize - 1})
            EXPECT_EQ(At(pixels, kSize, column, row), 0U);
}

TEST(ColorPicture, EdgeOfTheBallIsMultipliedWithItsAlpha) {
    int partly = 0;
    for (const std::uint32_t pixel : BallPicture(kWhite, BallShape(kSize, Lighting::TwoLamps))) {
        const std::uint32_t alpha = pixel >> 24;
        partly += alpha > 0 && alpha < 255 ? 1 : 0;
        for (const int shift : {0, 8, 16})
            EXPECT_LE(pixel >> shift & 0xFF, alpha);
    }
    EXPECT_GT(partly, kSize);
}

TEST(ColorPicture, BallOverABackgroundIsThatOfTheSameShares) {
    const auto over = ShadedBall(SharesOf(kWhite), kSize, 0);
    const auto alone = BallPicture(kWhite, BallShape(kSize, Lighting::OneLamp));
    for (std::size_t i = 0; i < alone.size(); ++i)
        EXPECT_EQ(alone[i] & 0xFFFFFF, over[i]);
}

TEST(ColorPicture, SecondLampLightensTheShade) {
    const auto one = BallPicture(kWhite, BallShape(kSize, Lighting::OneLamp));
    const auto two = BallPicture(kWhite, BallShape(kSize, Lighting::TwoLamps));
    EXPECT_GT(At(two, kSize, 24, 24), At(one, kSize, 24, 24));
    for (std::size_t i = 0; i < one.size(); ++i)
        EXPECT_GE(two[i], one[i]);
}

// More of each kind of light is never darker.
TEST(ColorPicture, LightGrowsWithAmbientDiffuseSpecularAndEmission) {
    const ColorValueArray gray{120, 120, 120, 10, 10, 10, 50, 0, 0};
    for (const ColorValue which :
         {ColorValue::Ambient, ColorValue::Diffuse, ColorValue::Specular, ColorValue::Emission}) {
        std::uint64_t before = Light(With(gray, which, 0));
        for (int value = 5; value <= 100; value += 5) {
            const std::uint64_t light = Light(With(gray, which, value));
            EXPECT_GT(light, before) << static_cast<int>(which) << " at " << value;
            before = light;
        }
    }
}

TEST(ColorPicture, ShinyHighlightsAreSmaller) {
    const ColorValueArray black{0, 0, 0, 0, 0, 100, 0, 0, 0};
    EXPECT_GT(Light(With(black, ColorValue::Shininess, 10)),
              Light(With(black, ColorValue::Shininess, 90)));
}

} // namespace
