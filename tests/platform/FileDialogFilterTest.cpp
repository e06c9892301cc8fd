// Rules: File commands
#include "platform/FileDialogFilter.h"

#include <gtest/gtest.h>

TEST(PlatformFilter, PartsEndInANulAndTheListInOneMore) {
    EXPECT_EQ(PlatformFilter("Libraries|*.tnt|All files|*.*"),
              std::wstring(L"Libraries\0*.tnt\0All files\0*.*\0\0", 31));
}

TEST(PlatformFilter, SeparatorAtTheEndDoesNotEndTheListEarly) {
    EXPECT_EQ(PlatformFilter("a|*.a|"), std::wstring(L"a\0*.a\0\0", 7));
}

TEST(PlatformFilter, NoFilterIsEmpty) {
    EXPECT_TRUE(PlatformFilter("").empty());
}

TEST(DefaultExtension, IsTheEndingOfTheFirstPattern) {
    EXPECT_EQ(DefaultExtension("Libraries|*.tnt|All files|*.*"), L"tnt");
}

TEST(DefaultExtension, IsEmptyForEveryOtherPattern) {
    EXPECT_EQ(DefaultExtension("All files|*.*|Libraries|*.tnt"), L"");
    EXPECT_EQ(DefaultExtension("Both|*.tnt;*.bak"), L"");
    EXPECT_EQ(DefaultExtension("One|colors.tnt"), L"");
    EXPECT_EQ(DefaultExtension("One"), L"");
    EXPECT_EQ(DefaultExtension(""), L"");
}
