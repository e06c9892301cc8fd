#include "platform/ProgramFolder.h"

#include "platform/Win32Files.h"

#include <gtest/gtest.h>

TEST(ProgramFolder, HoldsTheRunningProgram) {
    EXPECT_TRUE(Win32Files().Exists(
        ProgramFolder() + "\\" + Win32Files().FindNormalFile(ProgramFolder() + "\\*_tests.exe")));
}

TEST(ProgramFolder, HasNoBackslashAtItsEnd) {
    ASSERT_FALSE(ProgramFolder().empty());
    EXPECT_NE(ProgramFolder().back(), '\\');
}
