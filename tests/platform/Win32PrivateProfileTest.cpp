// Rules: Language files and control texts
#include "platform/Win32PrivateProfile.h"

#include "tests/platform/ScratchFolder.h"

#include <gtest/gtest.h>

namespace {

class Win32PrivateProfileTest : public testing::Test {
protected:
    Win32PrivateProfileTest() {
        folder.Write("x.ini", "[Info]\r\n1=Gr\xFCn\r\n4=\"ends in a blank \"\r\nnumber=-12\r\n"
                              "long=" +
                                  std::string(300, 'x') + "\r\n");
    }

    [[nodiscard]] std::string GetString(const std::string& key, std::uint32_t bufferSize = 256) {
        return profile.GetString("Info", key, "fallback", file, bufferSize);
    }

    ScratchFolder folder;
    std::string file = folder.File("x.ini");
    Win32PrivateProfile profile;
};

} // namespace

TEST_F(Win32PrivateProfileTest, TextIsBytesAsTheyStandInTheFile) {
    EXPECT_EQ(GetString("1"), "Gr\xFCn");
}

TEST_F(Win32PrivateProfileTest, QuotesKeepABlankAtTheEnd) {
    EXPECT_EQ(GetString("4"), "ends in a blank ");
}

TEST_F(Win32PrivateProfileTest, LongTextIsCutOneBelowTheBufferSize) {
    EXPECT_EQ(GetString("long"), std::string(255, 'x'));
    EXPECT_EQ(GetString("long", 301), std::string(300, 'x'));
}

TEST_F(Win32PrivateProfileTest, MissingKeySectionAndFileGiveTheFallback) {
    EXPECT_EQ(GetString("none"), "fallback");
    EXPECT_EQ(profile.GetString("none", "1", "fallback", file, 256), "fallback");
    EXPECT_EQ(profile.GetString("Info", "1", "fallback", folder.File("none.ini"), 256), "fallback");
    EXPECT_EQ(profile.GetInt("Info", "none", -7, file), -7);
}

TEST_F(Win32PrivateProfileTest, NumberKeepsItsSign) {
    EXPECT_EQ(profile.GetInt("Info", "number", 0, file), -12);
}

TEST_F(Win32PrivateProfileTest, WrittenTextIsReadBack) {
    EXPECT_TRUE(profile.WriteString("frmMain", "mnuFile.Caption",
                                    "\xDC"
                                    "bersicht",
                                    file));
    EXPECT_EQ(profile.GetString("frmMain", "mnuFile.Caption", "", file, 256), "\xDC"
                                                                              "bersicht");
}

TEST_F(Win32PrivateProfileTest, WritingIntoAMissingFolderIsAFailure) {
    EXPECT_FALSE(profile.WriteString("Info", "1", "x", folder.File("none\\x.ini")));
}
