// Rules: Color mathematics
#include "shading/MaterialScene.h"

#include "shading/SceneGeometry.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace {

constexpr int kWidth = 148;
constexpr int kHeight = 100;

// Ambient and diffuse light, nothing else.
constexpr ColorValueArray kWhite{255, 255, 255, 100, 100, 0, 0, 0, 0};
constexpr ColorValueArray kMirror{0, 0, 0, 0, 0, 100, 50, 0, 0};

ColorValueArray With(ColorValueArray values, ColorValue which, int value) {
    values.at(static_cast<std::size_t>(which)) = static_cast<std::int16_t>(value);
    return values;
}

const SceneShape& Shape() {
    static const SceneShape shape(kWidth, kHeight);
    return shape;
}

enum class Thing { Board, Ball, Cube, Edge };

// What the whole of a pixel shows.
Thing ThingOf(std::size_t pixel) {
    static const SceneGeometry scene(kWidth, kHeight);
    if (Shape().SpotsOf(pixel).size() != 1)
        return Thing::Edge;
    const auto hit = scene.HitAt(
        {static_cast<double>(pixel % kWidth) + 0.5, static_cast<double>(pixel / kWidth) + 0.5});
    if (!hit)
        return Thing::Board;
    return hit->isBall ? Thing::Ball : Thing::Cube;
}

// Whether all of it is the cube, its edges included.
bool IsInsideTheCube(std::size_t pixel) {
    static const SceneGeometry scene(kWidth, kHeight);
    const auto x = static_cast<double>(pixel % kWidth);
    const auto y = static_cast<double>(pixel / kWidth);
    const SceneGeometry::Point corners[] = {{x, y}, {x + 1, y}, {x, y + 1}, {x + 1, y + 1}};
    return std::ranges::all_of(corners, [](const SceneGeometry::Point& corner) {
        const auto hit = scene.HitAt(corner);
        return hit && !hit->isBall;
    });
}

// How many pixels of the thing have which color.
std::map<std::uint32_t, int> ColorsOf(Thing thing, const ColorValueArray& values) {
    const auto pixels = ScenePicture(values, Shape());
    std::map<std::uint32_t, int> colors;
    for (std::size_t pixel = 0; pixel < pixels.size(); ++pixel)
        if (ThingOf(pixel) == thing)
            ++colors[pixels[pixel]];
    return colors;
}

// All bytes of all pixels together.
std::uint64_t LightIn(const ColorValueArray& values) {
    std::uint64_t sum = 0;
    for (const std::uint32_t pixel : ScenePicture(values, Shape()))
        sum += (pixel >> 16 & 0xFF) + (pixel >> 8 & 0xFF) + (pixel & 0xFF);
    return sum;
}

TEST(MaterialScene, ShowsABallACubeAndTheBoardWithEdgesBetweenThem) {
    std::map<Thing, int> pixels;
    for (std::size_t pixel = 0; pixel < Shape().PixelCount(); ++pixel)
        ++pixels[ThingOf(pixel)];
    EXPECT_EQ(Shape().PixelCount(), std::size_t{kWidth} * kHeight);
    for (const Thing thing : {Thing::Board, Thing::Ball, Thing::Cube, Thing::Edge})
        EXPECT_GT(pixels[thing], kWidth * kHeight / 20) << static_cast<int>(thing);
}

TEST(MaterialScene, WhiteIsWhite) {
    for (const Thing thing : {Thing::Ball, Thing::Cube})
        EXPECT_GT(ColorsOf(thing, kWhite)[0xFFFFFF], 300) << "towards the lamp";
}

TEST(MaterialScene, WithoutLightAllIsBlackAndTheBoardIsThereWhateverTheMaterialIs) {
    for (const Thing thing : {Thing::Ball, Thing::Cube})
        EXPECT_EQ(ColorsOf(thing, {255, 255, 255}).size(), 1U);
    const auto board = ColorsOf(Thing::Board, {});
    EXPECT_EQ(board.size(), 2U);
    for (const ColorValueArray& values : {kWhite, kMirror, ColorValueArray{1, 2, 3, 4, 5, 6, 7, 8}})
        EXPECT_EQ(ColorsOf(Thing::Board, values), board);
}

TEST(MaterialScene, WhatIsTransparentShowsTheBoardStrongerThanAround) {
    for (const Thing thing : {Thing::Ball, Thing::Cube}) {
        const auto colors = ColorsOf(thing, With(kWhite, ColorValue::Transparency, 100));
        EXPECT_EQ(colors.size(), 2U);
        EXPECT_EQ(colors.begin()->first, 0xB8B8B8U);
        EXPECT_EQ(colors.rbegin()->first, 0xEDEDEDU);
        const auto around = ColorsOf(Thing::Board, kWhite);
        EXPECT_GT(around.begin()->first, colors.begin()->first);
        EXPECT_LT(around.rbegin()->first, colors.rbegin()->first);
    }
}

TEST(MaterialScene, HalfTransparentIsHalfOfBoth) {
    const ColorValueArray glow{200, 0, 0, 0, 0, 0, 0, 50, 100};
    const std::map<std::uint32_t, int> colors = ColorsOf(Thing::Ball, glow);
    EXPECT_EQ(colors.size(), 2U);
    EXPECT_TRUE(colors.contains(0xDB7777)) << "half of 200 and of 237.15, half of 0 and of 237.15";
    EXPECT_TRUE(colors.contains(0xC05C5C));
}

TEST(MaterialScene, EmissionBrightens) {
    const ColorValueArray dark{120, 60, 30, 20, 20, 0, 0, 0, 0};
    for (const Thing thing : {Thing::Ball, Thing::Cube})
        EXPECT_GT(ColorsOf(thing, With(dark, ColorValue::Emission, 60)).begin()->first,
                  ColorsOf(thing, dark).begin()->first);
    EXPECT_GE(ColorsOf(Thing::Ball, With(dark, ColorValue::Emission, 100)).begin()->first >> 16,
              120U)
        << "its own color, in the shade too";
}

// More of each kind of light is never darker.
TEST(MaterialScene, LightGrowsWithAmbientDiffuseSpecularAndEmission) {
    const ColorValueArray gray{120, 120, 120, 10, 10, 10, 50, 0, 0};
    for (const ColorValue which :
         {ColorValue::Ambient, ColorValue::Diffuse, ColorValue::Specular, ColorValue::Emission}) {
        std::uint64_t before = LightIn(With(gray, which, 0));
        for (int value = 20; value <= 100; value += 20) {
            const std::uint64_t light = LightIn(With(gray, which, value));
            EXPECT_GT(light, before) << static_cast<int>(which) << " at " << value;
            before = light;
        }
    }
}

int BrightPixels(Thing thing, int shininess) {
    int count = 0;
    for (const auto& [color, pixels] :
         ColorsOf(thing, With(kMirror, ColorValue::Shininess, shininess)))
        count += (color & 0xFF) > 0x60 ? pixels : 0;
    return count;
}

TEST(MaterialScene, HighlightShrinksWithShininess) {
    int before = kWidth * kHeight;
    for (const int shininess : {0, 20, 50, 100}) {
        const int bright = BrightPixels(Thing::Ball, shininess);
        EXPECT_LT(bright, before);
        EXPECT_GT(bright, 0);
        before = bright;
    }
}

// Of the sides that are larger than anything else: in the lightest color that there is, too.
TEST(MaterialScene, SidesOfTheCubeAreToldFromEachOther) {
    for (const ColorValueArray& values :
         {ColorValueArray{255, 255, 255, 100, 100, 100, 30, 0, 0}, kWhite,
          ColorValueArray{40, 40, 40, 60, 60, 0, 0, 0, 0}}) {
        std::vector<int> sides;
        for (const auto& [color, pixels] : ColorsOf(Thing::Cube, values))
            if (pixels > 100)
                sides.push_back(static_cast<int>(color & 0xFF));
        ASSERT_EQ(sides.size(), 3U);
        EXPECT_GT(sides[1], sides[0] + 4);
        EXPECT_GT(sides[2], sides[1] + 2);
    }
}

// The whole of the edge between the upper and the front side, which would be black without it.
TEST(MaterialScene, RoundedEdgeOfTheCubeCatchesTheLight) {
    const auto pixels = ScenePicture(kMirror, Shape());
    std::uint32_t onSides = 0;
    int bright = 0;
    for (std::size_t pixel = 0; pixel < pixels.size(); ++pixel) {
        const std::uint32_t color = pixels[pixel] & 0xFF;
        if (ThingOf(pixel) == Thing::Cube)
            onSides = std::max(onSides, color);
        else if (IsInsideTheCube(pixel) && color > 0x60)
            ++bright;
    }
    EXPECT_LT(onSides, 0x30U);
    EXPECT_GT(bright, 25);
}

TEST(MaterialScene, RimOfTheBallIsSmooth) {
    const auto pixels = ScenePicture({}, Shape());
    std::map<std::uint32_t, int> shades;
    for (std::size_t pixel = 0; pixel < pixels.size(); ++pixel)
        ++shades[pixels[pixel]];
    EXPECT_GT(shades.size(), 20U) << "black, two shades of the board, and what lies between";
}

TEST(MaterialScene, BallAndCubeHaveRoomInEveryShape) {
    for (const auto& [width, height] :
         {std::pair{1, 1}, {7, 3}, {40, 40}, {60, 300}, {500, 60}, {200, 200}}) {
        const SceneShape shape(width, height);
        EXPECT_EQ(ScenePicture(kWhite, shape).size(), static_cast<std::size_t>(width * height));
        if (width < 40)
            continue;
        const SceneGeometry scene(width, height);
        for (int x = 0; x <= width; ++x)
            for (const int y : {0, height})
                EXPECT_FALSE(scene.HitAt({static_cast<double>(x), static_cast<double>(y)}));
        for (int y = 0; y <= height; ++y)
            for (const int x : {0, width})
                EXPECT_FALSE(scene.HitAt({static_cast<double>(x), static_cast<double>(y)}));
    }
}

TEST(MaterialScene, EachEndOfEachValueGivesAPicture) {
    for (std::size_t i = 0; i < kColorValueCount; ++i)
        for (const int value : {-32768, 0, MaximumOfColorValue(i), 32767}) {
            const auto pixels =
                ScenePicture(With(kWhite, static_cast<ColorValue>(i), value), Shape());
            EXPECT_TRUE(
                std::ranges::all_of(pixels, [](std::uint32_t pixel) { return pixel >> 24 == 0; }));
        }
}

} // namespace
