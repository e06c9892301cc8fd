// Rules: Toolkit
#include "platform/PlatformPath.h"

#include <gtest/gtest.h>

namespace {
const std::string kLongName(200, 'n');
const std::wstring kLongWideName(200, L'n');
} // namespace

TEST(PlatformPath, ShortPathStaysAsItIs) {
    EXPECT_EQ(ToPlatformPath(R"(C:\colors\m\u00FC.tnt)"), LR"(C:\colors\m\u00FC.tnt)");
    EXPECT_EQ(ToPlatformPath("colors.tnt"), L"colors.tnt");
}

TEST(PlatformPath, LongPathOfADriveGetsThePrefix) {
    EXPECT_EQ(ToPlatformPath("C:\\" + kLongName + "\\" + kLongName),
              LR"(\\?\C:\)" + kLongWideName + L"\\" + kLongWideName);
}

TEST(PlatformPath, LongPathOfAShareGetsItsOwnPrefix) {
    EXPECT_EQ(ToPlatformPath(R"(\\server\share\)" + kLongName + "\\" + kLongName),
              LR"(\\?\UNC\server\share\)" + kLongWideName + L"\\" + kLongWideName);
}

TEST(PlatformPath, LongPathIsTidiedBecauseThePrefixTakesItLiterally) {
    EXPECT_EQ(ToPlatformPath("C:/" + kLongName + "/x/../" + kLongName),
              LR"(\\?\C:\)" + kLongWideName + L"\\" + kLongWideName);
}

TEST(PlatformPath, PrefixedPathIsNotPrefixedAgain) {
    const std::wstring prefixed = LR"(\\?\C:\)" + kLongWideName + L"\\" + kLongWideName;
    EXPECT_EQ(ToPlatformPath(R"(\\?\C:\)" + kLongName + "\\" + kLongName), prefixed);
}

TEST(PlatformPath, PathWithANulNamesNothing) {
    EXPECT_TRUE(ToPlatformPath(std::string("a\0b", 3)).empty());
    EXPECT_TRUE(ToAbsolutePlatformPath(std::string("a\0b", 3)).empty());
}

TEST(PlatformPath, AbsolutePathIsThatOfTheCurrentFolder) {
    const std::wstring path = ToAbsolutePlatformPath("colors.tnt");
    EXPECT_TRUE(path.ends_with(L"\\colors.tnt")) << path.size();
    EXPECT_EQ(path[1], L':');
    EXPECT_EQ(ToAbsolutePlatformPath(R"(C:\a\b.tnt)"), LR"(C:\a\b.tnt)");
    EXPECT_EQ(ToAbsolutePlatformPath("C:\\" + kLongName + "\\" + kLongName),
              LR"(\\?\C:\)" + kLongWideName + L"\\" + kLongWideName);
}
