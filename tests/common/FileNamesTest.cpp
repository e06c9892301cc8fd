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

TEST(FileNameStem, IsTheNameWithoutFolderAndExtension) {
    EXPECT_EQ(FileNameStem("C:\\a.b\\web.colors.gpl"), "web.colors");
    EXPECT_EQ(FileNameStem("web"), "web");
    EXPECT_EQ(FileNameStem(""), "");
}

TEST(AsFileName, HasNoCharacterThatMayNotBeInOneAndNoDot) {
    EXPECT_EQ(AsFileName("RAL 1.5: \"matt\"/<glanz>|?*\\"), "RAL 1-5- -matt---glanz-----");
    EXPECT_EQ(AsFileName("a\r\nb"), "a--b");
    EXPECT_EQ(AsFileName("Grün 色"), "Grün 色");
    EXPECT_EQ(AsFileName("end  "), "end");
}

TEST(AsFileName, IsNeverEmpty) {
    EXPECT_EQ(AsFileName(""), "-");
    EXPECT_EQ(AsFileName("  "), "-");
}

} // namespace
