// Rules: Color mathematics
#include "shading/PictureCache.h"

#include "shading/SurfaceShade.h"

#include <gtest/gtest.h>

namespace {

constexpr ColorValueArray kRed{255, 0, 0, 50, 50, 50, 50, 0, 0};

std::vector<std::uint32_t> PixelsOf(PictureCache& cache, const ColorPicture& picture) {
    const std::uint32_t* pixels = cache.PixelsOf(picture);
    const auto size = static_cast<std::size_t>(picture.size);
    return {pixels, pixels + size * size};
}

TEST(PictureCache, LargePicturesAreBallsAndSmallOnesFieldsWithABorderThatFits) {
    PictureCache cache;
    EXPECT_EQ(PixelsOf(cache, {.values = kRed, .size = 48, .isBall = true}),
              BallPicture(kRed, BallShape(48, Lighting::TwoLamps)));
    for (const auto& [size, one] : {std::pair{8, 1}, {16, 1}, {24, 1}, {32, 2}, {48, 3}})
        EXPECT_EQ(PixelsOf(cache, {.values = kRed, .size = size, .border = 7}),
                  FieldPicture(kRed, {.size = size, .margin = one, .border = one, .color = 7}));
}

TEST(PictureCache, APictureIsMadeOnceForItsValuesSizeShapeAndBorder) {
    PictureCache cache;
    const ColorPicture picture{.values = kRed, .size = 16};
    const std::uint32_t* first = cache.PixelsOf(picture);
    std::vector<ColorPicture> others(4, picture);
    others[0].values.back() = 1;
    others[1].size = 17;
    others[2].isBall = true;
    others[3].border = 1;
    for (const ColorPicture& other : others)
        EXPECT_NE(cache.PixelsOf(other), first);
    EXPECT_EQ(cache.PixelsOf(picture), first);
    EXPECT_EQ(cache.Count(), 5U);
}

TEST(PictureCache, HoldsNoMoreThanItsMostHoweverManyColorsCome) {
    PictureCache cache;
    for (int color = 0; color < 3000; ++color) {
        ColorPicture picture{.values = kRed, .size = 16};
        picture.values[1] = static_cast<std::int16_t>(color % 256);
        picture.values[2] = static_cast<std::int16_t>(color / 256);
        EXPECT_EQ(PixelsOf(cache, picture), FieldPicture(picture.values, {16, 1, 1, 0}));
        EXPECT_LE(cache.Count(), PictureCache::kMost);
    }
}

} // namespace
