// Rules: Layout, bars and views
#include "platform/IconStrip.h"

#include <gtest/gtest.h>

namespace {

constexpr int kSide = 16;

DIBSECTION Describe(const BitmapHandle& strip) {
    DIBSECTION description{};
    GetObjectW(strip.Get(), sizeof description, &description);
    return description;
}

// Color and alpha of a pixel, counted from the bottom left corner.
DWORD PixelOf(const BitmapHandle& strip, int x, int y) {
    const BITMAP bitmap = Describe(strip).dsBm;
    return static_cast<const DWORD*>(bitmap.bmBits)[y * bitmap.bmWidth + x];
}

} // namespace

TEST(IconStrip, HoldsTheIconsBesideEachOtherInTheirOrder) {
    const BitmapHandle both = LoadIconStrip({"Open", "Save"}, kSide);
    const BitmapHandle second = LoadIconStrip({"Save"}, kSide);
    ASSERT_TRUE(both && second);
    EXPECT_EQ(Describe(both).dsBm.bmWidth, 2 * kSide);
    EXPECT_EQ(Describe(both).dsBm.bmHeight, kSide);
    int different = 0;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x) {
            EXPECT_EQ(PixelOf(both, kSide + x, y), PixelOf(second, x, y)) << x << ", " << y;
            different += static_cast<int>(PixelOf(both, x, y) != PixelOf(second, x, y));
        }
    EXPECT_GT(different, kSide);
}

TEST(IconStrip, KeepsWhatIsTransparentAndWhatIsNot) {
    const BitmapHandle strip = LoadIconStrip({"Save"}, kSide);
    ASSERT_TRUE(strip);
    EXPECT_EQ(PixelOf(strip, 0, kSide - 1) >> 24, 0U);
    EXPECT_EQ(PixelOf(strip, kSide / 2, kSide / 2) >> 24, 255U);
}

TEST(IconStrip, SizeThatTheIconsDoNotHaveGivesNone) {
    EXPECT_FALSE(LoadIconStrip({"Save"}, kSide + 1));
}

TEST(IconStrip, IconThatTheProgramDoesNotHoldGivesNone) {
    EXPECT_FALSE(LoadIconStrip({"Save", "NoSuchIcon"}, kSide));
}
