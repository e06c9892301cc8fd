// Rules: Auxiliary windows
#include "common/FileNames.h"

#include <gtest/gtest.h>

namespace {

TEST(NumberOfFile, IsWhatTheNameEndsWithBeforeItsExtension) {
    EXPECT_EQ(NumberOfFile("banner12.bmp"), 12);
    EXPECT_EQ(NumberOfFile("C:\\1\\banner007.bmp"), 7);
    EXPECT_EQ(NumberOfFile("3.bmp"), 3);
    EXPECT_EQ(NumberOfFile("1.2.bmp"), 2);
}

TEST(NumberOfFile, IsZeroWithoutOne) {
    for (const char* name : {"", "spring.bmp", "4you.bmp", "C:\\folder9\\a.bmp", "a1234567890.bmp"})
        EXPECT_EQ(NumberOfFile(name), 0) << name;
}

} // namespace
