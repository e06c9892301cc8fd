// Rules: Recovery
#include "app/CrashReports.h"

#include "tests/fakes/FakeFiles.h"

#include <gtest/gtest.h>

namespace {

class CrashReportsTest : public testing::Test {
protected:
    void Leave(const std::string& name) { files.contents["C:\\data\\" + name] = "x"; }

    FakeFiles files;
    CrashReports reports{files, files, "C:\\data"};
};

TEST_F(CrashReportsTest, WithoutACrashThereIsNothingToTell) {
    Leave("own-1.txt");
    EXPECT_EQ(reports.TakeNew(), "");
    EXPECT_EQ(CrashReports(files, files, "").TakeNew(), "");
}

TEST_F(CrashReportsTest, TheLatestIsToldOnce) {
    Leave("crash 20240102 030405.new");
    Leave("crash 20240102 030405.dmp");
    Leave("crash 20240103 030405.new");
    EXPECT_EQ(reports.TakeNew(), "C:\\data\\crash 20240103 030405.txt");
    EXPECT_EQ(reports.TakeNew(), "");
    EXPECT_TRUE(files.contents.contains("C:\\data\\crash 20240102 030405.txt"));
    EXPECT_TRUE(files.contents.contains("C:\\data\\crash 20240102 030405.dmp"));
}

TEST_F(CrashReportsTest, TheLatestTenStay) {
    for (int number = 10; number < 25; ++number) {
        Leave("crash 202401" + std::to_string(number) + " 000000.dmp");
        Leave("crash 202401" + std::to_string(number) + " 000000.txt");
    }
    EXPECT_EQ(reports.TakeNew(), "");
    EXPECT_EQ(files.contents.size(), 20U);
    EXPECT_TRUE(files.contents.contains("C:\\data\\crash 20240115 000000.dmp"));
    EXPECT_FALSE(files.contents.contains("C:\\data\\crash 20240114 000000.txt"));
}

} // namespace
