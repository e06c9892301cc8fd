// Rules: Toolkit
#include "platform/ProgramFolder.h"

#include "platform/Utf16.h"
#include "platform/Win32AnsiCodePage.h"
#include "platform/Win32Files.h"
#include "tests/platform/ScratchFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

TEST(ProgramFolder, HoldsTheRunningProgram) {
    EXPECT_TRUE(Win32Files().Exists(
        ProgramFolder() + "\\" + Win32Files().FindNormalFile(ProgramFolder() + "\\*_tests.exe")));
}

TEST(ProgramFolder, HasNoBackslashAtItsEnd) {
    ASSERT_FALSE(ProgramFolder().empty());
    EXPECT_NE(ProgramFolder().back(), '\\');
}

TEST(ProgramFolder, FolderThatTheCodePageHoldsStaysAsItIs) {
    EXPECT_EQ(FolderForCodePage("C:\\Gr\xC3\xBC\x6E", Win32AnsiCodePage(1252)),
              "C:\\Gr\xC3\xBC\x6E");
}

TEST(ProgramFolder, OtherFolderIsKnownByItsShortPath) {
    const ScratchFolder folder;
    const std::string path = folder.File("\xD0\x96\xD0\xB6");
    ASSERT_TRUE(std::filesystem::create_directory(ToUtf16(path)));
    const Win32AnsiCodePage western(1252);
    const std::string shortPath = FolderForCodePage(path, western);
    EXPECT_TRUE(western.Encode(shortPath).unstored.empty()) << shortPath;
    EXPECT_TRUE(std::filesystem::is_directory(ToUtf16(shortPath)));
}
