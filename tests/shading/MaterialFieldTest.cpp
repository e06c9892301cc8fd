// Rules: Color mathematics
#include "shading/MaterialField.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <span>

namespace {

constexpr std::uint32_t kLine = 0x808080;
constexpr std::uint32_t kPlain = 0x0A141E;
constexpr MaterialPicture kPicture{
    .values = {10, 20, 30, 60, 80, 50, 40, 0, 0}, .width = 148, .height = 104, .line = kLine};

MaterialPicture Sized(int width, int height, int dpi) {
    MaterialPicture picture = kPicture;
    picture.width = width;
    picture.height = height;
    picture.dpi = dpi;
    return picture;
}

std::vector<std::uint32_t> PixelsOf(const MaterialPicture& picture) {
    static MaterialField field;
    const std::uint32_t* pixels = field.PixelsOf(picture);
    return {pixels, pixels + static_cast<std::ptrdiff_t>(picture.width) * picture.height};
}

// The rows at the lower edge that are of one color from left to right, that color first.
int RowsBelow(const MaterialPicture& picture, std::uint32_t color) {
    const auto pixels = PixelsOf(picture);
    int rows = 0;
    for (auto row = pixels.end(); row != pixels.begin(); ++rows) {
        row -= picture.width;
        if (!std::all_of(row, row + picture.width, [&](auto pixel) { return pixel == color; }))
            break;
    }
    return rows;
}

TEST(MaterialField, BandOfThePlainColorIsBelowTheSceneBehindALine) {
    for (const int dpi : {96, 144}) {
        const MaterialPicture picture = Sized(148 * dpi / 96, 104 * dpi / 96, dpi);
        const int band = RowsBelow(picture, kPlain);
        EXPECT_EQ(band, std::max(14 * dpi / 96, picture.height / 6));
        const auto pixels = PixelsOf(picture);
        const auto line = pixels.end() - static_cast<std::ptrdiff_t>(picture.width) * (band + 1);
        EXPECT_EQ(std::count(line, line + picture.width, kLine), picture.width);
        const SceneShape shape(picture.width, picture.height - band - 1);
        const auto scene = ScenePicture(picture.values, shape);
        EXPECT_TRUE(std::equal(scene.begin(), scene.end(), pixels.begin(), line));
    }
}

TEST(MaterialField, NarrowFieldIsThePlainColorAlone) {
    for (const int dpi : {96, 144}) {
        const int least = 72 * dpi / 96;
        EXPECT_LT(RowsBelow(Sized(least, least, dpi), kPlain), least);
        for (const auto& [width, height] : {std::pair{least - 1, 400}, {400, least - 1}, {1, 1}})
            EXPECT_EQ(RowsBelow(Sized(width, height, dpi), kPlain), height);
    }
}

TEST(MaterialField, PlainColorIsThatWithoutItsTransparency) {
    MaterialPicture picture = kPicture;
    picture.values.at(static_cast<std::size_t>(ColorValue::Transparency)) = 100;
    EXPECT_GT(RowsBelow(picture, kPlain), 10);
}

TEST(MaterialField, APictureIsMadeAnewOnlyWhenItIsAnotherOne) {
    MaterialField field;
    const std::uint32_t* pixels = field.PixelsOf(kPicture);
    EXPECT_EQ(field.PixelsOf(kPicture), pixels);
    const std::vector<std::uint32_t> before(pixels, pixels + 148 * 104);
    for (std::size_t i = 0; i < kColorValueCount; ++i) {
        MaterialPicture other = kPicture;
        other.values.at(i) = static_cast<std::int16_t>(other.values.at(i) + 25);
        EXPECT_FALSE(std::ranges::equal(std::span(field.PixelsOf(other), before.size()), before))
            << "every value is seen: " << i;
    }
    static_cast<void>(field.PixelsOf(Sized(80, 90, 96)));
    EXPECT_TRUE(std::ranges::equal(std::span(field.PixelsOf(kPicture), before.size()), before));
}

} // namespace
